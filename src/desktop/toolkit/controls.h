#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QString>
#include <QStyledItemDelegate>
#include <cstdint>
#include <string_view>

#include "session/state/screen_state.h"

/// What the controls of all windows share in looks, keys and speech.
namespace quillmark::desktop {

/// A colour as the state has it: 0xBBGGRR.
QColor StateColour(std::uint32_t bgr);
inline constexpr std::uint32_t kHighlight = 0xC0FFFF;  ///< a pale yellow

/// The mnemonics of one window, of which no two are alike.
class Mnemonics {
 public:
    /// The text with its "&" doubled and the mark before a letter that is still free, if there is one: the
    /// preferred one, else the first letter of a word, else any.
    QString Mark(std::string_view text, char preferred = '\0');

 private:
    bool Take(QChar letter);

    QSet<QChar> taken_;
};

/// What the control is called and what it is for, as screen readers say it.
void Describe(QWidget* control, const QString& name, const QString& description = {});

/// Gives the button its caption, once.
void Caption(QAbstractButton* widget, const Button& button, Mnemonics& keys, char preferred = '\0');
/// Shows whether the button can be pressed and what its tool tip says.
void ShowButton(QAbstractButton* widget, const Button& button);
/// Gives a button that colour behind dark text; an invalid colour puts back its own.
void SetBackground(QAbstractButton* widget, const QColor& colour);

/// A button no wider than its caption needs, where the toolkit's own never get narrower than a dialog's.
class CompactButton : public QPushButton {
 public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// Room is kept for this caption as well, so that nothing moves when it comes.
    void KeepRoomFor(const QString& caption) { widest_ = caption; }

 private:
    QString widest_;
};

/// The bar at the foot of a window that says what can be done.
QLabel* NewGuidance(QWidget* window, std::string_view text);

/// Rows of a list with some room around their text.
class RoomyRows final : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace quillmark::desktop
