#include "desktop/side_windows/custom_forms_dialog.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

constexpr int kTick = 1000;  ///< milliseconds between two looks at the open form's date
constexpr const char* kButtons[] = {"cmdImport", "cmdOpen", "cmdRename", "cmdDelete", "cmdCheck",
                                    "cmdMend",   "cmdTest", "cmdEdit",   "cmdExit"};

}  // namespace

CustomFormsDialog::CustomFormsDialog(CustomFormsWindow& model, QWidget* parent)
    : SideWindow(parent, "Quillmark - " + model.Title()), model_(model) {
    setObjectName(QStringLiteral("CustomForms"));
    Mnemonics keys;
    hint_ = new QLabel(this);
    Text1_ = new QLabel(this);
    Text1_->setWordWrap(true);
    Text1_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    Text1_->setMinimumHeight(fontMetrics().lineSpacing() * 5);
    Describe(Text1_, QStringLiteral("Description"));
    Arrange(keys);
    Timer1_ = new QTimer(this);
    Timer1_->start(kTick);
    On(Timer1_, &QTimer::timeout, this, [this] {
        if (model_.IsWatching()) Do([this] { model_.Click("Timer1"); });
    });
    Refresh();
    ResizeTo(120, 40);
}

void CustomFormsDialog::Arrange(Mnemonics& keys) {
    auto* files = new QVBoxLayout;
    AddSource(*files, keys);
    AddPane("Dir1", "Folders", *files, 1, keys);
    AddPane("File1", "Forms", *files, 2, keys);
    auto* markers = new QVBoxLayout;
    search_ = new QLineEdit(this);
    search_->setObjectName(QStringLiteral("searchMarkers"));
    search_->setPlaceholderText(QStringLiteral("search the markers"));
    search_->setClearButtonEnabled(true);
    Describe(search_, QStringLiteral("Search the markers"));
    AddPane("List1", "Field markers", *markers, 1, keys);
    markers->insertWidget(0, search_);
    markers->addWidget(Text1_);
    auto* lists = new QHBoxLayout;
    lists->addLayout(markers, 1);
    lists->addLayout(files, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(hint_);
    layout->addLayout(lists, 3);
    AddPane("lstFindings", "Found in the form", *layout, 1, keys);
    AddButtons(*layout, keys);
    On(search_, &QLineEdit::textEdited, this, [this] { Refresh(); });
}

void CustomFormsDialog::AddSource(QBoxLayout& layout, Mnemonics& keys) {
    source_ = new QWidget(this);
    auto* line = new QHBoxLayout(source_);
    line->setContentsMargins(0, 0, 0, 0);
    auto* caption = new QLabel(keys.Mark("Document"), source_);
    txtSourceFile_ = new QLineEdit(source_);
    txtSourceFile_->setObjectName(QStringLiteral("txtSourceFile"));
    caption->setBuddy(txtSourceFile_);
    Describe(txtSourceFile_, QStringLiteral("Document to import"));
    auto* choose = new QPushButton(keys.Mark("Choose ..."), source_);
    choose->setAutoDefault(false);
    line->addWidget(caption);
    line->addWidget(txtSourceFile_, 1);
    line->addWidget(choose);
    layout.addWidget(source_);
    On(txtSourceFile_, &QLineEdit::textEdited, this,
       [this](const QString& text) { Do([this, &text] { model_.SetText("txtSourceFile", Utf8(text)); }); });
    On(choose, &QPushButton::clicked, this, [this] { ChooseFile(); });
}

void CustomFormsDialog::AddPane(const char* control, const char* caption, QBoxLayout& layout, int stretch,
                                Mnemonics& keys) {
    Pane& pane = panes_[control];
    pane.box = new QWidget(this);
    auto* column = new QVBoxLayout(pane.box);
    column->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(keys.Mark(caption), pane.box);
    pane.view = new LinesView(pane.lines, QString::fromLatin1(caption), pane.box);
    label->setBuddy(pane.view);
    column->addWidget(label);
    column->addWidget(pane.view, 1);
    layout.addWidget(pane.box, stretch);
    // A folder is entered as a whole, anything else is chosen by a click.
    const bool opens = std::string_view(control) == "Dir1";
    On(pane.view, opens ? &LinesView::LineOpened : &LinesView::LineSelected, this,
       [this, control, &pane](int line) {
           if (showing_ || line < 0) return;
           const std::size_t entry = pane.entries.at(static_cast<std::size_t>(line));
           Do([&] { model_.Pick(control, entry); });
           if (std::string_view(control) == "List1") CopyMarker();
       });
    // A marker clicked again goes to the clipboard again: something else may have been copied meanwhile.
    if (std::string_view(control) == "List1")
        On(pane.view, &QAbstractItemView::clicked, this, [this] { CopyMarker(); });
}

void CustomFormsDialog::CopyMarker() {
    if (!model_.IsOpen() || model_.Clipboard().empty()) return;
    QGuiApplication::clipboard()->setText(Shown(model_.Clipboard()));
}

void CustomFormsDialog::AddButtons(QBoxLayout& layout, Mnemonics& keys) {
    auto* foot = new QHBoxLayout;
    for (const char* name : kButtons) {
        if (std::string_view(name) == "cmdTest") foot->addStretch();
        const WindowControl control = model_.Control(name);
        auto* button = new QPushButton(this);
        button->setAutoDefault(false);
        button->setObjectName(QString::fromLatin1(name));
        Caption(button, {control.text, control.tooltip, control.enabled, control.visible}, keys);
        foot->addWidget(button);
        buttons_[name] = button;
        On(button, &QPushButton::clicked, this, [this, name] { Do([this, name] { model_.Click(name); }); });
    }
    layout.addLayout(foot);
}

void CustomFormsDialog::ChooseFile() {
    const QString start = Shown(model_.Control("Dir1").text);
    const QString file = QFileDialog::getOpenFileName(
        this, QStringLiteral("Document to import"), start,
        QStringLiteral(
            "Word documents (*.docx *.docm *.dotx *.dotm *.doc *.dot *.rtf *.odt);;All files (*)"));
    if (!file.isEmpty()) Do([&] { model_.SetText("txtSourceFile", Utf8(file)); });
}

/// One act of the person, and what follows of it.
template <class Act>
void CustomFormsDialog::Do(Act act) {
    Guarded(this, act);
    if (!model_.IsOpen()) return QDialog::reject();
    Refresh();
}

void CustomFormsDialog::Refresh() {
    showing_ = true;
    setWindowTitle(Shown("Quillmark - " + model_.Title()));
    for (const WindowControl& control : model_.Controls()) {
        if (const auto pane = panes_.find(control.name); pane != panes_.end())
            ShowPane(control, pane->second);
        if (const auto button = buttons_.find(control.name); button != buttons_.end()) {
            const QString text = Shown(control.text);
            QString shown = button->second->text();
            if (shown.remove(QLatin1Char('&')) != text) button->second->setText(text);
            ShowButton(button->second, {control.text, control.tooltip, control.enabled, control.visible});
        }
        if (control.name == "lblHint") hint_->setText(Shown(control.text));
        if (control.name == "Text1") Text1_->setText(Shown(control.text).trimmed());
        if (control.name != "txtSourceFile") continue;
        source_->setVisible(control.visible);
        if (txtSourceFile_->text() != Shown(control.text)) txtSourceFile_->setText(Shown(control.text));
    }
    search_->setVisible(panes_.at("List1").box->isVisibleTo(this));
    showing_ = false;
}

void CustomFormsDialog::ShowPane(const WindowControl& control, Pane& pane) {
    const QString sought = control.name == "List1" ? search_->text().trimmed() : QString();
    std::vector<std::string> lines;
    std::vector<std::size_t> entries;
    for (std::size_t entry = 0; entry < control.items.size(); ++entry) {
        const std::string& item = control.items[entry];
        if (!sought.isEmpty() && !Shown(item).contains(sought, Qt::CaseInsensitive)) continue;
        lines.push_back(item);
        entries.push_back(entry);
    }
    if (lines != pane.lines) pane.view->Update([&] { pane.lines = lines; });
    pane.entries = entries;
    const auto line = std::find(entries.begin(), entries.end(), control.index.value_or(control.items.size()));
    if (line != entries.end() && control.index)
        pane.view->SelectLine(static_cast<int>(line - entries.begin()));
    pane.box->setVisible(control.visible);
}

void CustomFormsDialog::reject() {
    Guarded(this, [this] { model_.Close(); });
    if (!model_.IsOpen()) QDialog::reject();
}

void ShowCustomForms(MainScreen& screen, QWidget* parent, const QString& source) {
    auto* model = dynamic_cast<CustomFormsWindow*>(screen.Window());
    if (!model) return;
    if (!source.isEmpty()) model->SetText("txtSourceFile", Utf8(source));
    CustomFormsDialog(*model, parent).exec();
    screen.WindowHasActed();
}

}  // namespace quillmark::desktop
