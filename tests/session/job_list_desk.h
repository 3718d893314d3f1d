#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "selection/job_list_lines.h"
#include "selection/packages.h"
#include "session/documents.h"
#include "session/state/buttons.h"
#include "session/state/not_allowed.h"
#include "support/scratch.h"

namespace quillmark::test {

using Names = std::vector<std::string>;

/// The document choice alone, in its first state with a typed name, in an office of its own. Boxes that the
/// test has not asked for by the end fail it.
class Desk {
 public:
    explicit Desk(std::string_view name = "Smith - 101 Any Street") {
        folders.ProgramFolder = scratch.path();
        folders.CustomFormsFolder = scratch / "customforms";
        settings.documentAlerts = false;
        StartAnew(name);
    }

    ~Desk() { EXPECT_TRUE(dialogs.Shown().empty()) << dialogs.Shown().front().text; }

    void StartAnew(std::string_view name) {
        screen = {};
        screen.txtJobName.text = name;
        ResetButtons(false, screen);
        screen.cmdOpen.enabled = name.empty();
        ShowOptionTooltips(screen);
        documents.Offer();
    }

    /// As a saved job is edited: no more documents are chosen, all options are in reach.
    void Edit() {
        documents.CloseChoice();
        screen.mode = ScreenMode::Edit;
        screen.txtJobName.locked = true;
        ShowOpen(OpenDoes::SaveChanges, false, screen);
        for (OptionButton& button : screen.options) button.enabled = true;
    }

    // Each gives why the screen would not take it, nothing when it did.
    std::string Pick(std::string_view line) {
        return Refusal([&] { documents.Pick(line); });
    }
    std::string Drop(std::string_view name) {
        return Refusal([&] { documents.Drop(name); });
    }
    std::string Click(int n) {
        return Refusal([&] { documents.ClickOption(n); });
    }
    std::string DoubleClick(int n) {
        return Refusal([&] { documents.DoubleClickOption(n); });
    }
    std::string Legal(const Names& lines) {
        return Refusal([&] { documents.SelectLegal(lines); });
    }
    /// Also where no document of the list asks for the option.
    std::string ForceClick(int n) {
        screen.ButtonOf(n) = {true, true, ""};
        return Click(n);
    }
    void PickAll(const Names& lines) {
        for (const std::string& line : lines) EXPECT_EQ(Pick(line), "") << line;
    }

    Names List() const {
        Names names;
        for (const JobListLine& line : screen.List2) names.push_back(line.name);
        return names;
    }
    bool IsVisible(int n) const { return screen.ButtonOf(n).visible; }
    bool IsEnabled(int n) const { return screen.ButtonOf(n).enabled; }
    /// Titles and texts of the boxes since the last call.
    Names Boxes() {
        Names texts;
        for (const auto& box : dialogs.TakeShown()) texts.push_back(box.title + "|" + box.text);
        return texts;
    }

    ScratchFolder scratch;
    Settings settings;
    Folders folders;
    FirmDefaults firmDefaults;
    FixedClock clock{std::chrono::year(2021) / 7 / 1};
    ScriptedDialogs dialogs;
    ScreenState screen;
    FirmContext firm{settings, folders, firmDefaults, clock};
    GridEditor editor{screen, firm, dialogs, {}};
    DocumentCommands documents{screen, editor, firm, dialogs};

 private:
    template <class Action>
    static std::string Refusal(Action action) {
        try {
            action();
        } catch (const NotAllowed& refused) {
            return refused.what();
        }
        return {};
    }
};

}  // namespace quillmark::test
