#include "cli/console_state.h"

#include <array>
#include <utility>

#include "session/state/buttons.h"

namespace quillmark::cli {

namespace {

/// A list with an entry for each option, in order.
template <class Value>
Json OfEachOption(Value value) {
    Json list = Json::array();
    for (int n = 1; n <= kOptions; ++n) list.push_back(value(n));
    return list;
}

const OptionButton& OptionOf(const ScreenState& screen, int n) {
    return screen.options[static_cast<std::size_t>(n)];
}

Json NameBoxOf(const NameBox& box) {
    return {{"text", box.text}, {"locked", box.locked}, {"enabled", box.enabled}, {"noSave", box.noSave}};
}

Json LegalOf(const ScreenState& screen) {
    Json lines = Json::array();
    for (const JobListLine& line : screen.List2)
        if (line.selected) lines.push_back(line.name);
    return lines;
}

std::string_view NameOf(RowKind kind) {
    constexpr std::array<std::string_view, 3> kNames = {"field", "user", "heading"};
    return kNames[static_cast<std::size_t>(kind)];
}

Json RowOf(const GridRow& row) {
    return {{"kind", NameOf(row.kind)}, {"n", row.n},     {"label", row.label}, {"value", row.value},
            {"notes", row.notes},       {"lit", row.lit}, {"key", row.key},     {"locked", row.locked}};
}

Json GridOf(const ScreenState& screen) {
    Json rows = Json::array();
    for (const GridRow& row : screen.grid) rows.push_back(RowOf(row));
    return rows;
}

Json SettingsOf(const MainScreen& screen) {
    Json rows = Json::array();
    for (const SettingsRow& row : screen.List3()) rows.push_back(row.text);
    return rows;
}

Json ButtonsOf(const ScreenState& screen) {
    Json buttons = Json::object();
    for (const NamedButton& named : Buttons()) {
        const Button& button = screen.*(named.button);
        buttons[std::string(named.name)] = {{"caption", button.caption},
                                            {"enabled", button.enabled},
                                            {"visible", button.visible},
                                            {"tooltip", button.tooltip}};
    }
    return buttons;
}

}  // namespace

Json OptionsOf(const ScreenState& screen) {
    return OfEachOption([&](int n) { return screen.job.optConf(n); });
}

Json JobListOf(const ScreenState& screen) {
    Json lines = Json::array();
    for (const JobListLine& line : screen.List2) lines.push_back(line.name);
    return lines;
}

Json StateOf(const MainScreen& mainScreen) {
    const ScreenState& screen = mainScreen.State();
    return {{"txtJobName", NameBoxOf(screen.txtJobName)},
            {"ScreenMode", NameOf(screen.mode)},
            {"FieldEntryStarted", screen.FieldEntryStarted},
            {"optConf", OptionsOf(screen)},
            {"optEnabled", OfEachOption([&](int n) { return OptionOf(screen, n).enabled; })},
            {"optVisible", OfEachOption([&](int n) { return OptionOf(screen, n).visible; })},
            {"optTooltips", OfEachOption([&](int n) { return OptionOf(screen, n).tooltip; })},
            {"List1", screen.List1},
            {"List1Enabled", screen.List1Enabled},
            {"List2", JobListOf(screen)},
            {"List2Enabled", screen.List2Enabled},
            {"List2Tooltip", screen.List2Tooltip()},
            {"legal", LegalOf(screen)},
            {"JobDocuments", screen.job.JobDocuments},
            {"grid", GridOf(screen)},
            {"settings", SettingsOf(mainScreen)},
            {"total", screen.total},
            {"remaining", screen.remaining},
            {"buttons", ButtonsOf(screen)},
            {"info", screen.picInfo}};
}

}  // namespace quillmark::cli
