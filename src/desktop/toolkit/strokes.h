#pragma once

#include <QBrush>
#include <QIcon>
#include <QPainter>
#include <QStyleOption>

/// The drawing of each kind of control, all of it from its option's state and palette.
namespace quillmark::desktop {

/// A line inside the rectangle's edge, with round corners, around that ground.
void DrawBox(QPainter& painter, const QRectF& rect, const QColor& line, double width, const QBrush& ground);

/// A white letter on a disk of that colour, for boxes.
QIcon SignIcon(QChar letter, const QColor& disk);

QIcon ChevronIcon(QStyle::PrimitiveElement direction, const QColor& colour);

void DrawButton(QPainter& painter, const QStyleOption& button, bool isPrimary);
/// Only while it is pressed, on, or under the pointer.
void DrawToolButton(QPainter& painter, const QStyleOption& button);
/// The ring around what has the keyboard.
void DrawRing(QPainter& painter, const QStyleOption& around);
/// What can be filled.
void DrawField(QPainter& painter, const QStyleOption& field, const QBrush& ground);
/// What holds other things; in the accent where such a thing takes keys itself, as a list does.
void DrawPane(QPainter& painter, const QStyleOption& pane, const QWidget* widget);
void DrawPopUp(QPainter& painter, const QStyleOption& popUp, bool isTip);
void DrawRadio(QPainter& painter, const QStyleOption& radio);
void DrawCheckBox(QPainter& painter, const QStyleOption& box);
void DrawChevron(QPainter& painter, const QStyleOption& arrow, QStyle::PrimitiveElement direction);
/// The line of a list under the pointer.
void DrawItemGround(QPainter& painter, const QStyleOption& item);
void DrawHeaderSection(QPainter& painter, const QStyleOption& section);
/// `part` of a progress bar's length, from 0 to 1, in that colour.
void DrawProgress(QPainter& painter, const QStyleOption& bar, double part, QPalette::ColorRole colour);
void DrawSplitter(QPainter& painter, const QStyleOption& handle);
void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& handle);
void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QRect& handle);
void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& box, const QRect& arrow);

}  // namespace quillmark::desktop
