#include "session/client_choice.h"

#include <algorithm>

#include "platform/code_page.h"
#include "session/client_folders.h"
#include "session/state/buttons.h"
#include "session/state/ready.h"

namespace quillmark {

void ClientChoice::Open() {
    open_ = true;
    screen_.List1Enabled = screen_.List2Enabled = false;
    screen_.cmdOpen.enabled = screen_.cmdReset.enabled = false;
    EnableOtherWaysIn(false, screen_);
    screen_.picInfo.clear();
    screen_.cmdSelect.visible = false;
}

void ClientChoice::Serve(const std::string& name) {
    open_ = false;
    firm_.Serve(name);
    firm_.MakeFolders();
    around_.startAnew();
}

void ClientChoice::Add() {
    const auto name = machine_.dialogs.Ask({" NEW CLIENT ...", "ENTER NAME OF LAWFIRM", ""});
    if (!name || name->empty()) return;
    if (const std::string fault = FaultOfClientName(*name); !fault.empty()) {
        machine_.dialogs.Tell("", "\"" + *name + "\" cannot be the name of a client: it " + fault + ".",
                              DialogIcon::Warning);
        return;
    }
    if (!firm_.AddClient(*name)) {
        machine_.dialogs.Tell("", "A client of this name exists already: " + *name, DialogIcon::Warning);
        return;
    }
    Serve(*name);
    around_.setDefaults();
}

void ClientChoice::Select(std::string_view line) {
    RequireReady(screen_);
    Require(open_, "no client is being chosen");
    const auto& lines = firm_.ClientLines();
    Require(std::find(lines.begin(), lines.end(), line) != lines.end(),
            "there is no client \"" + std::string(line) + "\"");
    line == kAddClient ? Add() : Serve(std::string(line));
}

void ClientChoice::Delete(std::string_view name) {
    RequireReady(screen_);
    Require(open_, "no client is being chosen");
    const auto& lines = firm_.ClientLines();
    Require(std::find(lines.begin() + 1, lines.end(), name) != lines.end(),
            "there is no client \"" + std::string(name) + "\"");
    const auto answer = machine_.dialogs.Show(
        {" Warning",
         "You are about to permanently delete  " + UpperCase(name) + "  and all associated data.",
         {DialogButton::OK, DialogButton::Cancel},
         DialogButton::Cancel,
         DialogIcon::Warning});
    if (answer == DialogButton::Cancel) {
        machine_.dialogs.Tell("", "Action Canceled");
        return;
    }
    const bool hadFolder = firm_.DeleteClient(name);
    machine_.dialogs.Tell(
        "", hadFolder ? "Client Deleted"
                      : "Client Deleted\nNo folder of this client was found; no file was deleted.");
}

}  // namespace quillmark
