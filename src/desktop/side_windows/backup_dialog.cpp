#include "desktop/side_windows/backup_dialog.h"

#include <fmt/format.h>

#include <QComboBox>
#include <QEventLoop>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

constexpr int kLook = 3000;    ///< milliseconds between two looks at the drives
constexpr int kProgress = 50;  ///< and between two at the copying
constexpr int kWholeBar = 1000;
constexpr int kComparingFrom = 500;
constexpr int kReplacingFrom = 950;

using Stage = CopyProgress::Stage;

/// How far the stage is, by files and by bytes: both take their time.
double ShareDone(const CopyProgress& now) {
    if (now.files == 0) return 0;
    const double files = static_cast<double>(now.filesDone) / static_cast<double>(now.files);
    if (now.bytes == 0) return files;
    return (files + static_cast<double>(now.bytesDone) / static_cast<double>(now.bytes)) / 2;
}

int BarOf(const CopyProgress& now) {
    const auto between = [&](int from, int to) {
        return from + static_cast<int>(ShareDone(now) * (to - from));
    };
    switch (now.stage) {
        case Stage::Looking:
            return 0;
        case Stage::Copying:
            return between(0, kComparingFrom);
        case Stage::Comparing:
            return between(kComparingFrom, kReplacingFrom);
        case Stage::Replacing:
            break;
    }
    return kReplacingFrom;
}

std::string TextOf(const CopyProgress& now) {
    const std::string files =
        fmt::format("{} of {} files, {}", now.filesDone, now.files, SizeText(now.bytes));
    switch (now.stage) {
        case Stage::Looking:
            return fmt::format("Looking for files: {}", now.files);
        case Stage::Copying:
            return now.filesDone == now.files ? "Waiting until all is written ..." : "Copying " + files;
        case Stage::Comparing:
            return "Reading back and comparing " + files;
        case Stage::Replacing:
            break;
    }
    return "Putting in its place ...";
}

}  // namespace

BackupDialog::BackupDialog(BackupWindow& model, QWidget* parent)
    : SideWindow(parent, "Quillmark - " + model.Title()), model_(model) {
    setObjectName(QStringLiteral("Backup"));
    Mnemonics keys;
    auto* layout = new QVBoxLayout(this);
    controls_ = new QWidget(this);
    auto* inner = new QVBoxLayout(controls_);
    inner->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(controls_, 1);
    AddDrive(*inner, keys);
    AddLists(*inner, keys);
    AddProgress(*layout, keys);
    AddButtons(*layout, keys);
    model_.CarryBy([this](const BackupWindow::Copying& copying) { Carry(copying); });
    auto* Timer1 = new QTimer(this);
    Timer1->start(kLook);
    On(Timer1, &QTimer::timeout, this, [this] {
        if (!acting_ && !Drive1_->view()->isVisible()) Do([this] { model_.Click("Timer1"); });
    });
    Refresh();
    ResizeTo(72, 22);
}

void BackupDialog::AddDrive(QBoxLayout& layout, Mnemonics& keys) {
    auto* line = new QHBoxLayout;
    auto* caption = new QLabel(keys.Mark("Drive"), controls_);
    Drive1_ = new QComboBox(controls_);
    Drive1_->setObjectName(QStringLiteral("Drive1"));
    Drive1_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    caption->setBuddy(Drive1_);
    Describe(Drive1_, QStringLiteral("Drive"));
    line->addWidget(caption);
    line->addWidget(Drive1_, 1);
    line->addWidget(NewButton("lblAcct", keys));
    layout.addLayout(line);
    path_ = new QLabel(controls_);
    path_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Describe(path_, QStringLiteral("Folder of the backup"));
    layout.addWidget(path_);
    there_ = new QLabel(controls_);
    there_->setWordWrap(true);
    there_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    there_->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    Describe(there_, QStringLiteral("What is there"));
    layout.addWidget(there_);
    On(Drive1_, &QComboBox::activated, this,
       [this](int entry) { Do([&] { model_.Pick("Drive1", static_cast<std::size_t>(entry)); }); });
}

void BackupDialog::AddLists(QBoxLayout& layout, Mnemonics& keys) {
    auto* caption = new QLabel(keys.Mark("Backups on all drives"), controls_);
    List1_ = new LinesView(backups_, QStringLiteral("Backups on all drives"), controls_);
    List1_->setObjectName(QStringLiteral("List1"));
    caption->setBuddy(List1_);
    layout.addWidget(caption);
    layout.addWidget(List1_, 1);
    missing_ = new QLabel(controls_);
    missing_->setWordWrap(true);
    missing_->setObjectName(QStringLiteral("missing"));
    layout.addWidget(missing_);
    On(List1_, &LinesView::LineSelected, this, [this](int line) {
        if (!showing_ && line >= 0) Do([&] { model_.Pick("List1", static_cast<std::size_t>(line)); });
    });
}

void BackupDialog::AddProgress(QBoxLayout& layout, Mnemonics& keys) {
    progress_ = new QWidget(this);
    QSizePolicy keepsRoom = progress_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(keepsRoom);
    auto* column = new QVBoxLayout(progress_);
    column->setContentsMargins(0, 0, 0, 0);
    stage_ = new QLabel(progress_);
    bar_ = new QProgressBar(progress_);
    bar_->setRange(0, kWholeBar);
    bar_->setTextVisible(false);
    Describe(bar_, QStringLiteral("Progress"));
    cancel_ = new QPushButton(keys.Mark("Cancel"), progress_);
    cancel_->setObjectName(QStringLiteral("cmdCancel"));
    cancel_->setAutoDefault(false);
    auto* line = new QHBoxLayout;
    line->addWidget(bar_, 1);
    line->addWidget(cancel_);
    column->addWidget(stage_);
    column->addLayout(line);
    progress_->hide();
    layout.addWidget(progress_);
    On(cancel_, &QPushButton::clicked, this, [this] { reject(); });
}

void BackupDialog::AddButtons(QBoxLayout& layout, Mnemonics& keys) {
    auto* foot = new QHBoxLayout;
    foot->addWidget(NewButton("cmdBackup", keys));
    foot->addWidget(NewButton("cmdRestore", keys));
    foot->addStretch();
    foot->addWidget(NewButton("cmdExit", keys));
    layout.addLayout(foot);
}

QPushButton* BackupDialog::NewButton(const char* name, Mnemonics& keys) {
    const WindowControl control = model_.Control(name);
    auto* button = new QPushButton(this);
    button->setAutoDefault(false);
    button->setObjectName(QString::fromLatin1(name));
    Caption(button, {control.text, control.tooltip, control.enabled, control.visible}, keys);
    On(button, &QPushButton::clicked, this, [this, name] { Do([this, name] { model_.Click(name); }); });
    buttons_.push_back(button);
    return button;
}

/// One act of the person, and what follows of it.
template <class Act>
void BackupDialog::Do(Act act) {
    if (acting_) return;
    acting_ = true;
    Guarded(this, act);
    acting_ = false;
    if (!model_.IsOpen()) return QDialog::reject();
    Refresh();
}

void BackupDialog::Refresh() {
    showing_ = true;
    ShowDrives(model_.Control("Drive1"));
    path_->setText(Shown(model_.Control("path").text));
    there_->setText(Shown(model_.Control("there").text));
    const WindowControl list = model_.Control("List1");
    if (list.items != backups_) List1_->Update([&] { backups_ = list.items; });
    List1_->SelectLine(list.index ? static_cast<int>(*list.index) : -1);
    const WindowControl missing = model_.Control("missing");
    missing_->setText(Shown(fmt::format("Not found in this office: {}", fmt::join(missing.items, ", "))));
    missing_->setVisible(!missing.items.empty());
    for (QPushButton* button : buttons_) {
        const WindowControl control = model_.Control(Utf8(button->objectName()));
        if (control.name == "lblAcct") button->setText(Shown(control.text));
        ShowButton(button, {control.text, control.tooltip, control.enabled && !copying_, control.visible});
    }
    showing_ = false;
}

void BackupDialog::ShowDrives(const WindowControl& control) {
    QStringList names;
    for (const std::string& name : control.items) names.push_back(Shown(name));
    QStringList present;
    for (int i = 0; i < Drive1_->count(); ++i) present.push_back(Drive1_->itemText(i));
    if (names != present) {
        Drive1_->clear();
        Drive1_->addItems(names);
    }
    Drive1_->setCurrentIndex(control.index ? static_cast<int>(*control.index) : -1);
    Drive1_->setEnabled(!names.isEmpty());
}

void BackupDialog::Carry(const BackupWindow::Copying& copying) {
    copying_ = true;
    canceled_ = false;
    now_ = {};
    controls_->setEnabled(false);
    for (QPushButton* button : buttons_) button->setEnabled(false);
    progress_->show();
    cancel_->setFocus();
    ShowProgress();

    std::exception_ptr failure;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        try {
            copying([this](const CopyProgress& now) {
                const std::lock_guard lock(guard_);
                now_ = now;
                return !canceled_;
            });
        } catch (...) {
            failure = std::current_exception();
        }
    }));
    QEventLoop loop;
    connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    QTimer tick;
    connect(&tick, &QTimer::timeout, this, [this] { ShowProgress(); });
    tick.start(kProgress);
    worker->start();
    loop.exec();
    worker->wait();

    copying_ = false;
    progress_->hide();
    controls_->setEnabled(true);
    Drive1_->setFocus();
    QTimer::singleShot(0, this, [this] { Refresh(); });  // behind the box that tells how it ended
    if (failure) std::rethrow_exception(failure);
}

void BackupDialog::ShowProgress() {
    CopyProgress now;
    {
        const std::lock_guard lock(guard_);
        now = now_;
    }
    const bool canGiveUp = now.stage != Stage::Replacing && !canceled_;
    cancel_->setEnabled(canGiveUp);
    stage_->setText(Shown(canceled_ ? "Giving up ..." : TextOf(now)));
    bar_->setValue(BarOf(now));
}

void BackupDialog::reject() {
    if (copying_) {
        canceled_ = true;
        return;
    }
    Guarded(this, [this] { model_.Close(); });
    if (!model_.IsOpen()) QDialog::reject();
}

void ShowBackup(MainScreen& screen, QWidget* parent) {
    auto* model = dynamic_cast<BackupWindow*>(screen.Window());
    if (!model) return;
    BackupDialog(*model, parent).exec();
    screen.WindowHasActed();
}

}  // namespace quillmark::desktop
