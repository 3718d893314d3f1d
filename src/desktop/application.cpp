#include "desktop/application.h"

#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

#include "desktop/guide/guide_window.h"
#include "desktop/toolkit/guard.h"

namespace quillmark::desktop {

namespace {

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128, 256})
        icon.addFile(QStringLiteral(":/icons/quillmark-%1.png").arg(size));
    return icon;
}

}  // namespace

Application::Application(int& count, char** arguments) : QApplication(count, arguments) {
    setApplicationName(QStringLiteral("Quillmark"));
    setApplicationVersion(QStringLiteral(QUILLMARK_VERSION));
    setDesktopFileName(QStringLiteral("quillmark"));
    setWindowIcon(ProgramIcon());
    installEventFilter(new HelpKey(this));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        // A fault while the fault is being shown would show for ever.
        if (telling_) return false;
        telling_ = true;
        ShowFault(activeWindow());
        telling_ = false;
        return false;
    }
}

}  // namespace quillmark::desktop
