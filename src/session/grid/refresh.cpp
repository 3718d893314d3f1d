#include "session/grid/refresh.h"

#include <algorithm>

#include "entry/note_cells.h"
#include "selection/relevant_fields.h"
#include "session/state/buttons.h"

namespace quillmark {

namespace {

/// In a new job only what a document asks for is enabled; in other modes that adds to what there is.
void EnableOptions(const OptionSet& offered, ScreenState& screen) {
    for (int n = 1; n <= kOptions; ++n) {
        OptionButton& button = screen.ButtonOf(n);
        if (screen.mode == ScreenMode::Job) button.enabled = false;
        if (offered.test(static_cast<std::size_t>(n))) button.enabled = true;
    }
    for (const Option n : kExcludable)
        if (IsExcluded(n, screen.job)) screen.ButtonOf(n).enabled = false;
    if (screen.ButtonOf(LandMultiFamily).enabled) screen.ButtonOf(LandMultiFamily).visible = true;
}

void ShowGuidance(ScreenState& screen) {
    const auto first = std::find_if(screen.groups.begin(), screen.groups.end(),
                                    [](const GridGroup& group) { return group.HasRows(); });
    screen.currentGroup = first == screen.groups.end() ? 0 : static_cast<int>(first - screen.groups.begin());
    screen.picInfo = " Click an item for edit";
    if (screen.mode == ScreenMode::Presets) {
        screen.picInfo += ".  Use scroll bar or jump labels to navigate";
        return;
    }
    screen.picInfo += " (Double-Click if locked)";
    if (screen.mode == ScreenMode::Edit)
        screen.picInfo += ".  Use Enter, Tab, or Up/Down Arrow keys to navigate";
}

}  // namespace

void Refresh(ScreenState& screen, const FirmContext& firm, GridEditor& editor) {
    const OptionSet offered = RefreshFields(screen, firm);
    screen.currentRow = -1;
    EnableOptions(offered, screen);
    ShowGuidance(screen);
    ShowRowsAnew(screen, editor);
}

void ShowRowsAnew(ScreenState& screen, GridEditor& editor) {
    ShowAllFieldNotes(screen);
    editor.Forget();
    ShowExit(screen);
}

}  // namespace quillmark
