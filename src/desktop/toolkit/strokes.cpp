#include "desktop/toolkit/strokes.h"

#include <QAbstractScrollArea>
#include <QFrame>
#include <algorithm>

#include "desktop/toolkit/theme.h"

namespace quillmark::desktop {

namespace {

constexpr double kRound = 4;
constexpr double kRing = 2;  ///< the line around what has the keyboard

bool Is(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state & flag;
}

bool HasKeyboard(const QStyleOption& option) {
    return Is(option, QStyle::State_HasFocus) && Is(option, QStyle::State_Enabled);
}

class Smooth {
 public:
    explicit Smooth(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Smooth() { painter_.restore(); }
    Smooth(const Smooth&) = delete;
    Smooth& operator=(const Smooth&) = delete;

 private:
    QPainter& painter_;
};

/// Quiet, a little of the other colour under the pointer, more while pressed.
QColor Answering(const QStyleOption& option, const QColor& ground, const QColor& towards) {
    if (!Is(option, QStyle::State_Enabled)) return ground;
    if (Is(option, QStyle::State_Sunken) || Is(option, QStyle::State_On))
        return Between(ground, towards, 0.22F);
    return Is(option, QStyle::State_MouseOver) ? Between(ground, towards, 0.10F) : ground;
}

/// The edge of what can be filled or switched.
QColor EdgeOf(const QStyleOption& option) {
    return option.palette.color(QPalette::Dark);
}

QRectF Centred(const QRect& rect, double size) {
    QRectF square(0, 0, size, size);
    square.moveCenter(QRectF(rect).center());
    return square;
}

void DrawLines(QPainter& painter, const QColor& colour, double width, const QPolygonF& points) {
    const Smooth smooth(painter);
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(points);
}

void DrawRounded(QPainter& painter, const QRectF& rect, const QColor& colour) {
    const Smooth smooth(painter);
    const double round = std::min(rect.width(), rect.height()) / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(rect, round, round);
}

}  // namespace

void DrawBox(QPainter& painter, const QRectF& rect, const QColor& line, double width, const QBrush& ground) {
    const Smooth smooth(painter);
    const double half = width / 2;
    painter.setPen(QPen(line, width));
    painter.setBrush(ground);
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), kRound, kRound);
}

QIcon SignIcon(QChar letter, const QColor& disk) {
    QIcon icon;
    for (const int size : {32, 64, 96}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(disk);
        painter.drawEllipse(picture.rect().adjusted(1, 1, -1, -1));
        QFont font;
        font.setPixelSize(size * 5 / 8);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(picture.rect(), Qt::AlignCenter, letter);
        icon.addPixmap(picture);
    }
    return icon;
}

QIcon ChevronIcon(QStyle::PrimitiveElement direction, const QColor& colour) {
    QIcon icon;
    for (const int ratio : {1, 2, 3}) {
        constexpr int kSize = 16;
        QPixmap picture(QSize(kSize, kSize) * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QStyleOption arrow;
        arrow.rect = QRect(0, 0, kSize, kSize);
        arrow.palette.setColor(QPalette::ButtonText, colour);
        DrawChevron(painter, arrow, direction);
        icon.addPixmap(picture);
    }
    return icon;
}

void DrawButton(QPainter& painter, const QStyleOption& button, bool isPrimary) {
    const QPalette& palette = button.palette;
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor ground = isPrimary ? Answering(button, accent, Qt::black)
                                    : Answering(button, palette.color(QPalette::Button), accent);
    QColor line = palette.color(QPalette::Mid);
    if (isPrimary) line = ground;
    if (!HasKeyboard(button)) return DrawBox(painter, button.rect, line, 1, ground);
    DrawBox(painter, button.rect, accent, kRing, ground);
    if (!isPrimary) return;
    const QRectF inner = QRectF(button.rect).adjusted(kRing, kRing, -kRing, -kRing);
    DrawBox(painter, inner, palette.color(QPalette::HighlightedText), 1.5, Qt::NoBrush);
}

void DrawToolButton(QPainter& painter, const QStyleOption& button) {
    const bool answers = Is(button, QStyle::State_Enabled) &&
                         (button.state & (QStyle::State_Sunken | QStyle::State_On | QStyle::State_MouseOver));
    if (!answers && Is(button, QStyle::State_AutoRaise)) return;
    if (!Is(button, QStyle::State_AutoRaise)) return DrawButton(painter, button, false);
    const QPalette& palette = button.palette;
    const QColor ground =
        Answering(button, palette.color(QPalette::Window), palette.color(QPalette::Highlight));
    DrawBox(painter, button.rect, ground, 1, ground);
}

void DrawRing(QPainter& painter, const QStyleOption& around) {
    DrawBox(painter, around.rect, around.palette.color(QPalette::Highlight), kRing * 0.75, Qt::NoBrush);
}

void DrawField(QPainter& painter, const QStyleOption& field, const QBrush& ground) {
    const bool focused = HasKeyboard(field);
    const QColor line = focused ? field.palette.color(QPalette::Highlight) : EdgeOf(field);
    DrawBox(painter, field.rect, line, focused ? kRing : 1, ground);
}

void DrawPane(QPainter& painter, const QStyleOption& pane, const QWidget* widget) {
    const bool focused = HasKeyboard(pane) && widget && widget->focusPolicy() != Qt::NoFocus;
    // A box stands over other things.
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&pane);
    const bool isBox = frame && frame->frameShape == QFrame::Box;
    const QColor line = pane.palette.color(focused ? QPalette::Highlight
                                           : isBox ? QPalette::Dark
                                                   : QPalette::Mid);
    const bool isPaper = widget && (widget->backgroundRole() == QPalette::Base ||
                                    qobject_cast<const QAbstractScrollArea*>(widget));
    const QBrush ground = isPaper ? pane.palette.brush(QPalette::Base) : Qt::NoBrush;
    DrawBox(painter, pane.rect, line, focused ? kRing : 1, ground);
}

void DrawPopUp(QPainter& painter, const QStyleOption& popUp, bool isTip) {
    if (isTip) return painter.fillRect(popUp.rect, popUp.palette.color(QPalette::ToolTipBase));
    painter.save();
    painter.setPen(popUp.palette.color(QPalette::Dark));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(popUp.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

void DrawRadio(QPainter& painter, const QStyleOption& radio) {
    const QPalette& palette = radio.palette;
    const bool on = Is(radio, QStyle::State_On);
    const bool enabled = Is(radio, QStyle::State_Enabled);
    const QColor accent = enabled ? palette.color(QPalette::Highlight) : palette.color(QPalette::WindowText);
    const QRectF circle = Centred(radio.rect, std::min(radio.rect.width(), radio.rect.height()) - 1);
    const Smooth smooth(painter);
    painter.setPen(QPen(on ? accent : EdgeOf(radio), 1));
    painter.setBrush(on ? accent : Answering(radio, palette.color(QPalette::Base), accent));
    painter.drawEllipse(circle);
    if (!on) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(enabled ? QPalette::HighlightedText : QPalette::Window));
    painter.drawEllipse(circle.center(), circle.width() / 5, circle.width() / 5);
}

void DrawCheckBox(QPainter& painter, const QStyleOption& box) {
    const QPalette& palette = box.palette;
    const bool on = Is(box, QStyle::State_On) || Is(box, QStyle::State_NoChange);
    const bool enabled = Is(box, QStyle::State_Enabled);
    const QColor accent = enabled ? palette.color(QPalette::Highlight) : palette.color(QPalette::WindowText);
    const QRectF square = Centred(box.rect, std::min(box.rect.width(), box.rect.height()));
    DrawBox(painter, square, on ? accent : EdgeOf(box), 1,
            on ? accent : Answering(box, palette.color(QPalette::Base), accent));
    if (!on) return;
    const QColor mark = palette.color(enabled ? QPalette::HighlightedText : QPalette::Window);
    const auto at = [&](double x, double y) {
        return square.topLeft() + QPointF(x * square.width(), y * square.height());
    };
    if (Is(box, QStyle::State_NoChange)) return DrawLines(painter, mark, 2, {at(0.28, 0.5), at(0.72, 0.5)});
    DrawLines(painter, mark, 1.8, {at(0.25, 0.52), at(0.43, 0.70), at(0.76, 0.32)});
}

void DrawChevron(QPainter& painter, const QStyleOption& arrow, QStyle::PrimitiveElement direction) {
    const QRectF square = Centred(arrow.rect, std::min({arrow.rect.width(), arrow.rect.height(), 10}));
    const double x = square.width() * 0.4;
    const double y = x / 2;
    const QPointF middle = square.center();
    QPolygonF points;
    switch (direction) {
        case QStyle::PE_IndicatorArrowUp:
            points = {QPointF(-x, y), QPointF(0, -y), QPointF(x, y)};
            break;
        case QStyle::PE_IndicatorArrowLeft:
            points = {QPointF(y, -x), QPointF(-y, 0), QPointF(y, x)};
            break;
        case QStyle::PE_IndicatorArrowRight:
            points = {QPointF(-y, -x), QPointF(y, 0), QPointF(-y, x)};
            break;
        default:
            points = {QPointF(-x, -y), QPointF(0, y), QPointF(x, -y)};
    }
    points.translate(middle);
    DrawLines(painter, arrow.palette.color(QPalette::ButtonText), 1.4, points);
}

void DrawItemGround(QPainter& painter, const QStyleOption& item) {
    if (!Is(item, QStyle::State_MouseOver) || Is(item, QStyle::State_Selected) ||
        !Is(item, QStyle::State_Enabled))
        return;
    painter.fillRect(item.rect, Between(item.palette.color(QPalette::Base),
                                        item.palette.color(QPalette::Highlight), 0.08F));
}

void DrawHeaderSection(QPainter& painter, const QStyleOption& section) {
    painter.fillRect(section.rect, section.palette.window());
    painter.save();
    painter.setPen(section.palette.color(QPalette::Mid));
    painter.drawLine(section.rect.bottomLeft(), section.rect.bottomRight());
    painter.drawLine(section.rect.topRight(), section.rect.bottomRight());
    painter.restore();
}

void DrawProgress(QPainter& painter, const QStyleOption& bar, double part, QPalette::ColorRole colour) {
    constexpr double kThick = 8;
    QRectF groove(bar.rect);
    groove.setHeight(std::min(kThick, groove.height()));
    groove.moveCenter(QRectF(bar.rect).center());
    groove.setWidth(groove.width() * std::clamp(part, 0.0, 1.0));
    if (groove.width() >= 1) DrawRounded(painter, groove, bar.palette.color(colour));
}

void DrawSplitter(QPainter& painter, const QStyleOption& handle) {
    const bool upright = handle.rect.height() > handle.rect.width();
    const QColor colour = handle.palette.color(
        Is(handle, QStyle::State_MouseOver) || Is(handle, QStyle::State_Sunken) ? QPalette::Highlight
                                                                                : QPalette::Dark);
    QRectF grip(0, 0, upright ? 3 : 28, upright ? 28 : 3);
    grip.moveCenter(QRectF(handle.rect).center());
    DrawRounded(painter, grip, colour);
}

void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& handle) {
    painter.fillRect(bar.rect, bar.palette.color(QPalette::AlternateBase));
    if (bar.maximum <= bar.minimum) return;
    const bool held = Is(bar, QStyle::State_Sunken) && (bar.activeSubControls & QStyle::SC_ScrollBarSlider);
    const bool under = Is(bar, QStyle::State_MouseOver);
    const QColor quiet = bar.palette.color(QPalette::Dark);
    const QColor loud = bar.palette.color(QPalette::PlaceholderText);
    const bool upright = bar.orientation == Qt::Vertical;
    const QRectF thumb =
        upright ? QRectF(handle).adjusted(3, 2, -3, -2) : QRectF(handle).adjusted(2, 3, -2, -3);
    DrawRounded(painter, thumb, held ? bar.palette.color(QPalette::Highlight) : (under ? loud : quiet));
}

void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QRect& handle) {
    constexpr double kThick = 4;
    const QPalette& palette = slider.palette;
    const bool across = slider.orientation == Qt::Horizontal;
    QRectF groove(slider.rect);
    across ? groove.setHeight(kThick) : groove.setWidth(kThick);
    groove.moveCenter(QRectF(slider.rect).center());
    DrawRounded(painter, groove, palette.color(QPalette::Dark));
    QRectF done = groove;
    across ? done.setRight(handle.center().x()) : done.setTop(handle.center().y());
    const bool enabled = Is(slider, QStyle::State_Enabled);
    const QColor accent = enabled ? palette.color(QPalette::Highlight) : palette.color(QPalette::Dark);
    if (done.width() > kThick) DrawRounded(painter, done, accent);
    const QRectF knob = Centred(handle, std::min(handle.width(), handle.height()) - 1);
    DrawRounded(painter, knob, accent);
    if (!HasKeyboard(slider)) return;
    DrawRounded(painter, knob.adjusted(2, 2, -2, -2), palette.color(QPalette::HighlightedText));
    DrawRounded(painter, knob.adjusted(4, 4, -4, -4), accent);
}

void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& box, const QRect& arrow) {
    if (box.frame) {
        const QPalette& palette = box.palette;
        const QColor own = palette.color(box.editable ? QPalette::Base : QPalette::Button);
        DrawField(painter, box, Answering(box, own, palette.color(QPalette::Highlight)));
    }
    QStyleOption mark(box);
    mark.rect = arrow;
    DrawChevron(painter, mark, QStyle::PE_IndicatorArrowDown);
}

}  // namespace quillmark::desktop
