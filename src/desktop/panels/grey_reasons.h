#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// The property of a control that the session has no reasons for: why it is grey.
inline constexpr const char* kWhyGrey = "whyGrey";

/// Says why a control is grey: in its tool tip, and aloud when it is clicked all the same.
class GreyReasons final : public QObject {
    Q_OBJECT

 public:
    /// Watches all controls of the window that the session has reasons for, by their object names, and those
    /// that have a reason of their own.
    GreyReasons(Desk& desk, QWidget& window);

    /// After every command, when the controls show the state.
    void Show();

 Q_SIGNALS:
    void Asked(const QString& reason);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    struct Watched {
        QWidget* control;
        QString ownTip;
        QString reason;  ///< that stands in the tip's place
    };

    QString ReasonFor(const QWidget& control) const;

    Desk& desk_;
    std::vector<Watched> controls_;
};

}  // namespace quillmark::desktop
