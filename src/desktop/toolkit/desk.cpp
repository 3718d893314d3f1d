#include "desktop/toolkit/desk.h"

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

Desk::Desk(MainScreen& screen, QWidget& window) : QObject(&window), screen_(screen), window_(window) {}

bool Desk::Do(const Command& command) {
    QString refusal;
    const bool done = Run(command, refusal);
    if (!refusal.isEmpty()) Q_EMIT Refused(refusal);
    return done;
}

bool Desk::DoQuietly(const Command& command) {
    QString refusal;
    return Run(command, refusal);
}

bool Desk::Run(const Command& command, QString& refusal) {
    if (busy_ || screen_.HasEnded()) return false;
    busy_ = true;
    bool done = false;
    try {
        command(screen_);
        done = true;
    } catch (const NotAllowed& refused) {
        refusal = Shown(refused.what());
    } catch (...) {
        ShowFault(&window_);
    }
    busy_ = false;
    Q_EMIT Changed();
    return done;
}

}  // namespace quillmark::desktop
