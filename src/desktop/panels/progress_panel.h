#pragma once

#include <QFrame>
#include <QLabel>
#include <QProgressBar>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// The wait form: how far CREATE has come, in the middle of the window.
class ProgressPanel final : public QFrame {
    Q_OBJECT

 public:
    ProgressPanel(Desk& desk, QWidget* ground);

    void Show();

 private:
    void ShowPointer(bool waiting);

    Desk& desk_;
    QProgressBar* bar_;
    QLabel* message_;
    bool pointerWaits_ = false;
};

}  // namespace quillmark::desktop
