#include "desktop/side_windows/file_wait.h"

#include <QApplication>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>
#include <memory>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"

namespace quillmark::desktop {

namespace {

using namespace std::chrono_literals;

constexpr auto kSilent = 1500ms;  ///< how long the wait shows as a pointer alone
constexpr auto kGap = 300ms;      ///< without being called for so long, the wait is over

class FileWait {
 public:
    explicit FileWait(QWidget* parent) : parent_(parent) {
        over_.setSingleShot(true);
        over_.setInterval(kGap);
        QObject::connect(&over_, &QTimer::timeout, &over_, [this] { End(); });
    }
    ~FileWait() { End(); }
    FileWait(const FileWait&) = delete;
    FileWait& operator=(const FileWait&) = delete;

    bool GoOn(const FileInUse& use) {
        Begin();
        over_.start();
        if (use.waited >= kSilent) ShowHolder(use);
        QApplication::processEvents(window_ ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
        const bool canceled = window_ && window_->wasCanceled();
        if (canceled) End();
        return !canceled;
    }

 private:
    void Begin() {
        if (waiting_) return;
        waiting_ = true;
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }

    void ShowHolder(const FileInUse& use) {
        if (!window_) {
            QWidget* inUse = QApplication::activeModalWidget();
            window_ = new QProgressDialog(inUse ? inUse : parent_.data());
            window_->setAttribute(Qt::WA_WindowPropagation);
            window_->setWindowModality(Qt::ApplicationModal);
            window_->setRange(0, 0);
            window_->setMinimumDuration(0);
            window_->setWindowTitle(QStringLiteral("Waiting for a shared file"));
            window_->setCancelButtonText(QStringLiteral("&Cancel"));
        }
        window_->setLabelText(Shown(TextOf(use.file.filename()) + "\n" + DescriptionOf(use.holder)));
        Describe(window_, window_->windowTitle(), window_->labelText());
        window_->show();
    }

    void End() {
        over_.stop();
        delete window_.data();
        if (waiting_) QApplication::restoreOverrideCursor();
        waiting_ = false;
    }

    QPointer<QWidget> parent_;
    QPointer<QProgressDialog> window_;
    QTimer over_;
    bool waiting_ = false;
};

}  // namespace

WaitForFile WaitingForFiles(QWidget* parent) {
    return [wait = std::make_shared<FileWait>(parent)](const FileInUse& use) { return wait->GoOn(use); };
}

}  // namespace quillmark::desktop
