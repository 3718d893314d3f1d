#include "desktop/side_windows/packages_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

PackagesWindow::PackagesWindow(PackageEditor& editor, QWidget* parent)
    : SideWindow(parent, "Quillmark - Package Editor"), editor_(editor) {
    setObjectName(QStringLiteral("PackageEditor"));
    Mnemonics keys;
    AddName(keys);
    List1_ = new LinesView(editor_.State().List1, QStringLiteral("Available Forms"), this);
    List2_ = new LinesView(editor_.State().List2, QStringLiteral("Documents in this Package"), this);
    List2_->installEventFilter(this);
    AddButtons(keys);
    Arrange(keys);
    Connect();
    Refresh();
    Combo1_->setFocus();
    Combo1_->lineEdit()->selectAll();
    ResizeTo(110, 36);
}

void PackagesWindow::AddName(Mnemonics& keys) {
    caption_ = new QLabel(keys.Mark("Package Name"), this);
    Combo1_ = new QComboBox(this);
    Combo1_->setEditable(true);
    Combo1_->setInsertPolicy(QComboBox::NoInsert);
    Combo1_->setCompleter(nullptr);
    caption_->setBuddy(Combo1_);
    Describe(Combo1_, QStringLiteral("Package Name"));
    Describe(Combo1_->lineEdit(), QStringLiteral("Package Name"));
    Option1_ = new QCheckBox(keys.Mark("rename as"), this);
    Option1_->setToolTip(QStringLiteral("allow renaming of this package"));
    Describe(Option1_, QStringLiteral("rename as"), Option1_->toolTip());
}

void PackagesWindow::AddButtons(Mnemonics& keys) {
    const auto add = [&](const Button& button) {
        auto* widget = new QPushButton(this);
        widget->setAutoDefault(false);
        Caption(widget, button, keys);
        return widget;
    };
    const PackageEditorState& state = editor_.State();
    cmdSave_ = add(state.cmdSave);
    cmdDelete_ = add(state.cmdDelete);
    cmdBack_ = add(state.cmdBack);
    cmdImport_ = add(state.cmdImport);
}

void PackagesWindow::AddList(QGridLayout& lists, int column, std::string_view caption, LinesView* list,
                             Mnemonics& keys) {
    auto* label = new QLabel(keys.Mark(caption), this);
    label->setBuddy(list);
    lists.addWidget(label, 0, column);
    lists.addWidget(list, 1, column);
    lists.setColumnStretch(column, 1);
}

void PackagesWindow::Arrange(Mnemonics& keys) {
    auto* name = new QHBoxLayout;
    name->addWidget(caption_);
    name->addWidget(Combo1_, 1);
    name->addWidget(Option1_);
    name->addWidget(cmdSave_);
    name->addWidget(cmdDelete_);
    auto* lists = new QGridLayout;
    AddList(*lists, 0, "Available Forms", List1_, keys);
    AddList(*lists, 1, "Documents in this Package", List2_, keys);
    auto* foot = new QHBoxLayout;
    foot->addWidget(cmdImport_);
    foot->addStretch();
    foot->addWidget(cmdBack_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(name);
    layout->addLayout(lists, 1);
    layout->addLayout(foot);
    layout->addWidget(
        NewGuidance(this,
                    "Double-Click a form to add it to the package, or a document of the package to "
                    "take it out"));
    QWidget* previous = Combo1_;
    for (QWidget* next :
         {static_cast<QWidget*>(Option1_), static_cast<QWidget*>(List1_), static_cast<QWidget*>(List2_),
          static_cast<QWidget*>(cmdSave_), static_cast<QWidget*>(cmdDelete_),
          static_cast<QWidget*>(cmdImport_), static_cast<QWidget*>(cmdBack_)}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void PackagesWindow::Connect() {
    On(Combo1_, &QComboBox::activated, this,
       [this](int line) { Do([this, line] { editor_.PickPackage(static_cast<std::size_t>(line)); }); });
    On(Combo1_->lineEdit(), &QLineEdit::textEdited, this,
       [this](const QString& text) { Do([this, &text] { editor_.TypeName(Utf8(text)); }); });
    On(Option1_, &QCheckBox::clicked, this, [this](bool on) { Do([this, on] { editor_.SetRename(on); }); });
    On(List1_, &LinesView::LineOpened, this, [this](int line) {
        Do([this, line] { editor_.AddDocument(editor_.State().List1[static_cast<std::size_t>(line)]); });
    });
    On(List2_, &LinesView::LineOpened, this,
       [this](int line) { Do([this, line] { editor_.RemoveDocument(static_cast<std::size_t>(line)); }); });
    On(cmdSave_, &QPushButton::clicked, this, [this] { Do([this] { editor_.Save(); }); });
    On(cmdDelete_, &QPushButton::clicked, this, [this] { Do([this] { editor_.Delete(); }); });
    On(cmdBack_, &QPushButton::clicked, this, [this] { reject(); });
    On(cmdImport_, &QPushButton::clicked, this, [this] {
        wantsCustomDocuments_ = true;
        reject();
        wantsCustomDocuments_ = !isVisible();
    });
}

template <class Command>
void PackagesWindow::Do(Command command) {
    List2_->Update(command);
    Refresh();
}

void PackagesWindow::Refresh() {
    const PackageEditorState& state = editor_.State();
    QStringList names;
    for (const std::string& name : state.Combo1) names.push_back(Shown(name));
    QStringList shown;
    for (int i = 0; i < Combo1_->count(); ++i) shown.push_back(Combo1_->itemText(i));
    if (names != shown) {
        Combo1_->clear();
        Combo1_->addItems(names);
    }
    QLineEdit& box = *Combo1_->lineEdit();
    const QString text = Shown(state.Combo1Text);
    const int caret = box.cursorPosition();
    Combo1_->setCurrentIndex(static_cast<int>(state.Combo1Line));
    if (box.text() != text) {
        box.setText(text);
        box.setCursorPosition(caret);
    }
    Option1_->setChecked(state.Option1);
    ShowButton(cmdSave_, state.cmdSave);
    ShowButton(cmdDelete_, state.cmdDelete);
    ShowButton(cmdBack_, state.cmdBack);
    ShowButton(cmdImport_, state.cmdImport);
}

void PackagesWindow::reject() {
    bool leaves = false;
    Guarded(this, [&] { leaves = editor_.Leave(); });
    if (leaves) return QDialog::reject();
    Guarded(this, [this] { Refresh(); });
}

bool PackagesWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool removes =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    if (watched != List2_ || !removes || List2_->Line() < 0) return SideWindow::eventFilter(watched, event);
    Q_EMIT List2_->LineOpened(List2_->Line());
    return true;
}

bool ShowPackageEditor(MainScreen& screen, QWidget* parent) {
    const Button& button = screen.State().cmdPackages;
    if (!button.enabled || !button.visible) throw NotAllowed("cmdPackages is disabled");
    PackageEditor editor(screen.State().List1, screen.FirmAround().folders, screen.Person());
    PackagesWindow window(editor, parent);
    window.exec();
    screen.LeavePackages();
    return window.WantsCustomDocuments();
}

}  // namespace quillmark::desktop
