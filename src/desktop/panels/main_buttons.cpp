#include "desktop/panels/main_buttons.h"

#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

struct ButtonRow {
    std::string_view name;
    const Button ScreenState::*state;
    const char* purpose;  ///< what the control is for, where it has no tool tip
};

// clang-format off
constexpr ButtonRow kButtons[] = {
    {"cmdOpen",       &ScreenState::cmdOpen,       "opens, edits or saves the job"},
    {"cmdCreate",     &ScreenState::cmdCreate,     "makes the documents of the job"},
    {"cmdReset",      &ScreenState::cmdReset,      "clears the screen for another job"},
    {"cmdExit",       &ScreenState::cmdExit,       "ends the program"},
    {"cmdTemplate",   &ScreenState::cmdTemplate,   "lists client templates"},
    {"cmdPackages",   &ScreenState::cmdPackages,   "opens the package editor"},
    {"cmdCustom",     &ScreenState::cmdCustom,     "opens the custom forms"},
    {"cmdNameAs",     &ScreenState::cmdNameAs,     "gives this job another name"},
    {"cmdEnvelopes",  &ScreenState::cmdEnvelopes,  "prints envelopes for this job"},
    {"cmdOP236",      &ScreenState::cmdOP236,      "fills the conveyance tax return of this job"},
    {"cmdPrintFList", &ScreenState::cmdPrintFList, "prints the fields of this job"},
    {"cmdSelect",     &ScreenState::cmdSelect,     "chooses another law firm"},
};

/// Captions that can stand on the screen together have different letters.
struct Mnemonic {
    std::string_view caption;  ///< or its beginning
    char letter;
};
constexpr Mnemonic kMnemonics[] = {
    {"OPEN", 'O'},      {"EDIT", 'E'},     {"SAVE", 'S'},     {"CREATE", 'C'},    {"Re-Make", 'M'},
    {"RESET", 'R'},     {"EXIT", 'X'},     {"EMAIL", 'A'},    {"TEMPLATES", 'T'}, {"PACKAGES", 'K'},
    {"CUSTOM", 'U'},    {"Rename", 'N'},   {"Name As", 'N'},  {"envelopes", 'v'}, {"OP-236", 'P'},
    {"  PRINT", 'F'},   {"PRINT", 'F'},    {"Re-Select", 'l'},
};
// clang-format on

const ButtonRow& RowOf(std::string_view name) {
    return *std::find_if(std::begin(kButtons), std::end(kButtons),
                         [&](const ButtonRow& row) { return row.name == name; });
}

}  // namespace

QString MarkedCaption(std::string_view caption) {
    QString text = Shown(caption).trimmed().replace(QLatin1Char('&'), QStringLiteral("&&"));
    const auto key = std::find_if(std::begin(kMnemonics), std::end(kMnemonics),
                                  [&](const Mnemonic& row) { return caption.starts_with(row.caption); });
    if (key == std::end(kMnemonics)) return text;
    return text.insert(text.indexOf(QLatin1Char(key->letter), 0, Qt::CaseInsensitive), QLatin1Char('&'));
}

MainButtons::MainButtons(Desk& desk, const Appearance& appearance, QObject* parent)
    : QObject(parent), desk_(desk), appearance_(appearance) {}

QPushButton* MainButtons::Make(std::string_view name, QWidget* parent) {
    auto* widget = new CompactButton(parent);
    widget->setObjectName(Shown(name));
    widget->setAutoDefault(false);
    made_.push_back({name, RowOf(name).state, widget});
    connect(widget, &QPushButton::clicked, this, [this, name] { Q_EMIT Pressed(name); });
    ShowOne(made_.back());
    return widget;
}

void MainButtons::Show() {
    for (const Made& made : made_) ShowOne(made);
}

void MainButtons::ShowOne(const Made& made) const {
    const ScreenState& state = desk_.State();
    const Button& button = state.*made.state;
    QPushButton* widget = made.widget;
    const QString caption = MarkedCaption(button.caption);
    if (widget->text() != caption) {
        widget->setText(caption);
        Describe(widget, Shown(button.caption).simplified());
    }
    ShowButton(widget, button);
    if (widget->toolTip().isEmpty())
        widget->setAccessibleDescription(QLatin1String(RowOf(made.name).purpose));
    if (made.name == "cmdTemplate") MarkUnusual(widget, state.templateBeingSet);
    if (made.name == "cmdExit") {
        QFont font = widget->parentWidget()->font();
        font.setBold(state.exitDoes == ExitDoes::Mail);
        widget->setFont(font);
    }
}

}  // namespace quillmark::desktop
