#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "selection/job_list.h"
#include "selection/office.h"
#include "selection/option_clicks.h"
#include "selection/packages.h"
#include "selection/selection_state.h"
#include "support/scratch.h"

namespace quillmark::test {

using Names = std::vector<std::string>;

/// A screen in its first state with a typed name, in an office of its own. Boxes that the test has not asked
/// for by the end fail it.
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
        screen.cmdOpen = {"OPEN", "", name.empty(), true};
        screen.cmdCreate = {"CREATE", "", false, true};
        ShowOptionTooltips(screen);
        Fill();
    }
    void Fill() { FillList1(ReadPackages(folders.ProgramFolder), folders, screen); }

    /// As a saved job is edited: no more documents are chosen, all options are in reach.
    void Edit() {
        CloseDocumentChoice(screen);
        screen.ScreenMode = screen_mode::kEdit;
        screen.txtJobName.locked = true;
        screen.cmdOpen = {"SAVE", " save changes ", false, true};
        for (OptionButton& button : screen.options) button.enabled = true;
    }

    ListAction Pick(std::string_view line) { return PickLine(line, screen, office); }
    void PickAll(const Names& lines) {
        for (const std::string& line : lines) EXPECT_EQ(Pick(line), ListAction::Done) << line;
    }
    ListAction Drop(std::string_view name) {
        return DropLine(FindLine(name, screen).value_or(screen.List2.size()), screen, office);
    }
    OptionAction Click(int n) { return ClickOption(n, screen, office); }
    OptionAction DoubleClick(int n) { return DoubleClickOption(n, screen, office); }
    /// Also where no document of the list asks for the option.
    OptionAction ForceClick(int n) {
        screen.options[static_cast<std::size_t>(n)] = {true, true, ""};
        return Click(n);
    }

    Names List() const {
        Names names;
        for (const JobListLine& line : screen.List2) names.push_back(line.name);
        return names;
    }
    bool IsVisible(int n) const { return screen.options[static_cast<std::size_t>(n)].visible; }
    bool IsEnabled(int n) const { return screen.options[static_cast<std::size_t>(n)].enabled; }
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
    Office office{settings, folders, firmDefaults, clock, dialogs};
    SelectionState screen;
};

}  // namespace quillmark::test
