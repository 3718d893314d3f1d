#pragma once

#include <QColor>
#include <QPalette>

/// The program's own colours in a light and a dark set: warm greys, white paper, one accent, the blue of ink.
/// Text has a contrast of 4.5 to 1 or more on every ground that it stands on, and what shows where a control
/// is or where the keyboard is one of 3 to 1 (WCAG 2.1, 1.4.3 and 1.4.11, level AA).
namespace quillmark::desktop {

/// The colours that stand for a state.
struct StateColours {
    QColor activeRow;  ///< of the grid, and the text on it
    QColor activeText;
    QColor activeQuiet;  ///< text on it that stands back
    QColor litNote;      ///< of a note cell that is on, and the text on it
    QColor litText;
    QColor heading;   ///< behind the name of a group
    QColor rule;      ///< between two rows
    QColor jumpMark;  ///< of the current jump label, and the text on it
    QColor jumpText;
    QColor badge;  ///< behind a short word about a line, and the word itself
    QColor badgeText;
    QColor alarm;   ///< text of errors, of an unsaved name and of what must be filled
    QColor notice;  ///< text of what to do next
    QColor desk;    ///< around pages
    QColor shade;   ///< laid over the paper of pages, so that it does not glare; not a colour of its own
};

inline constexpr QColor StateColours::*kStateColours[] = {
    &StateColours::activeRow, &StateColours::activeText, &StateColours::activeQuiet, &StateColours::litNote,
    &StateColours::litText,   &StateColours::heading,    &StateColours::rule,        &StateColours::jumpMark,
    &StateColours::jumpText,  &StateColours::badge,      &StateColours::badgeText,   &StateColours::alarm,
    &StateColours::notice,    &StateColours::desk};

/// The palette of all windows. PlaceholderText is for all text that stands back, Mid for lines between parts,
/// Dark for the edge of what can be filled or switched, Highlight is the accent.
QPalette ThemePalette(bool dark);
StateColours ThemeStates(bool dark);
/// Whether a palette, the desktop's or one of these, has light text on dark ground.
bool IsDark(const QPalette& palette);

/// The colour between two, `part` of the way from `a` to `b`.
QColor Between(const QColor& a, const QColor& b, float part);

/// Which of the two sets the windows have.
enum class ThemeChoice { System, Light, Dark };

/// Gives the whole application its style and its palette. Windows that have a palette of their own hear of it
/// by a change of the application's palette.
void ApplyTheme(ThemeChoice choice);

}  // namespace quillmark::desktop
