#include "desktop/panels/grey_reasons.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QRegularExpression>

#include "desktop/toolkit/text.h"
#include "session/state/reasons.h"

namespace quillmark::desktop {

GreyReasons::GreyReasons(Desk& desk, QWidget& window) : QObject(&window), desk_(desk) {
    static const QRegularExpression names(QStringLiteral(
        "^(cmd[A-Z]\\w*|optConf\\d+|lblJump\\d|List[12]|txtJobName|documentFilter|undo|redo|finish[A-Z]\\w*)$"));
    for (QWidget* control : window.findChildren<QWidget*>(names)) {
        controls_.push_back({control, control->toolTip(), {}});
        control->installEventFilter(this);
        if (auto* list = qobject_cast<QAbstractScrollArea*>(control))
            list->viewport()->installEventFilter(this);
    }
}

QString GreyReasons::ReasonFor(const QWidget& control) const {
    if (control.isEnabled()) return {};
    if (const QVariant own = control.property(kWhyGrey); own.isValid()) return own.toString();
    const std::string name = Utf8(control.objectName());
    return Shown(WhyDisabled(name == "documentFilter" ? "List1" : name, desk_.State()));
}

void GreyReasons::Show() {
    for (Watched& watched : controls_) {
        const QString reason = ReasonFor(*watched.control);
        if (!reason.isEmpty())
            watched.control->setToolTip(reason);
        else if (!watched.reason.isEmpty() && watched.control->toolTip() == watched.reason)
            watched.control->setToolTip(watched.ownTip);
        watched.reason = reason;
    }
}

bool GreyReasons::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        auto* widget = static_cast<QWidget*>(watched);
        const QWidget* control =
            widget->objectName().startsWith(QLatin1String("qt_")) ? widget->parentWidget() : widget;
        if (const QString reason = ReasonFor(*control); !reason.isEmpty()) Q_EMIT Asked(reason);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace quillmark::desktop
