#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>

#include "session/main_screen.h"

/// Between the windows and the main screen's logic: the one way by which a click or a key becomes a command.
namespace quillmark::desktop {

class Desk final : public QObject {
    Q_OBJECT

 public:
    using Command = std::function<void(MainScreen&)>;

    /// `screen` must outlive the object; faults show over `window`.
    Desk(MainScreen& screen, QWidget& window);

    const MainScreen& Screen() const { return screen_; }
    const ScreenState& State() const { return screen_.State(); }
    const GridEditorState& Editor() const { return screen_.Editor(); }

    /// Runs a command and has the window show what it left. False when the screen did not take it, when it
    /// failed (the text of the fault has been shown), and, with nothing done, while another one runs.
    bool Do(const Command& command);
    /// The same for what merely follows from another event: no refusal is told.
    bool DoQuietly(const Command& command);
    /// Tells why a command is not even tried.
    void Refuse(const QString& reason) { Q_EMIT Refused(reason); }
    /// A command is running: a box of its own may be on the screen, and events are no commands.
    bool IsBusy() const { return busy_; }

 Q_SIGNALS:
    /// Every panel is to show the state as it is now.
    void Changed();
    /// The screen did not take the command, and this is why.
    void Refused(const QString& reason);

 private:
    bool Run(const Command& command, QString& refusal);

    MainScreen& screen_;
    QWidget& window_;
    bool busy_ = false;
};

}  // namespace quillmark::desktop
