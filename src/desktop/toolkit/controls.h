#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QString>
#include <QStyledItemDelegate>
#include <string_view>

#include "session/state/screen_state.h"

/// What the controls of all windows share in looks, keys and speech.
namespace quillmark::desktop {

/// Behind what is in an unusual state, and the text on it, whatever the theme.
inline constexpr QColor kHighlight(0xFF, 0xFF, 0xC0);
inline constexpr QColor kHighlightedText(0x1F, 0x24, 0x30);

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
/// Shows by its colours that the button is in an unusual state, or puts back its own.
void MarkUnusual(QAbstractButton* widget, bool unusual);

/// A button no wider than its caption needs, where the toolkit's own never get narrower than a dialog's.
class CompactButton : public QPushButton {
 public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// Room is kept for this caption as well, so that nothing moves when it comes.
    void KeepRoomFor(const QString& caption);
    /// How wide it is with that caption.
    int WidthOf(const QString& caption) const;

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
