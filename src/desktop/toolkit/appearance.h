#pragma once

#include <QFont>
#include <QPalette>
#include <QWidget>

#include "desktop/toolkit/theme.h"

/// How large and how bright the windows are.
namespace quillmark::desktop {

/// The same colours with less light, from 0 for all of it to `Appearance::kDarkest`; text stays readable.
QPalette DimmedPalette(const QPalette& bright, int dimming);
StateColours DimmedStates(bool dark, int dimming);

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

    /// Those of the application's palette, at the present brightness.
    const StateColours& Colours() const { return colours_; }
    /// The application's palette has changed, to the dark one for instance.
    void TakePalette();

 private:
    void ApplyPalette();

    QWidget& window_;
    QFont font_;        ///< at 100 per cent
    QPalette palette_;  ///< undimmed
    int scale_ = 100;
    int dimming_ = 0;
    StateColours colours_;
};

}  // namespace quillmark::desktop
