#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QWidget>

/// How large and how bright the windows are, and the colours that stand for a state.
namespace quillmark::desktop {

/// The colours of states, as they stand on the screen at the present brightness. Text on them is dark.
struct StateColours {
    QColor activeRow;
    QColor litNote;
    QColor stateText;  ///< readable on both
    QColor jumpMark;   ///< of the current jump label, and the text on it
    QColor jumpText;
    QColor template_;  ///< of `cmdTemplate` while a template is being set
    QColor badge;      ///< behind a short word about a line, and the word itself
    QColor badgeText;
    QColor alarm;   ///< text of errors and of an unsaved name
    QColor notice;  ///< text of what to do next
};

/// Scale and brightness of one window and of the windows that it opens, which take over its font and palette.
class Appearance {
 public:
    static constexpr int kSmallest = 80;  ///< per cent
    static constexpr int kLargest = 200;
    static constexpr int kStep = 10;
    static constexpr int kDarkest = 10;  ///< the highest value of `Slider1`

    explicit Appearance(QWidget& window);

    int Scale() const { return scale_; }
    int Dimming() const { return dimming_; }
    /// Brings the value into range and applies it. True if it is another one than before.
    bool SetScale(int perCent);
    bool SetDimming(int value);

    const StateColours& Colours() const { return colours_; }
    /// The desktop's own colours have changed, to dark ones for instance.
    void TakeSystemPalette();

 private:
    QColor Dimmed(QColor colour) const;
    void ApplyPalette();

    QWidget& window_;
    QFont font_;        ///< at 100 per cent
    QPalette palette_;  ///< undimmed
    int scale_ = 100;
    int dimming_ = 0;
    StateColours colours_;
};

}  // namespace quillmark::desktop
