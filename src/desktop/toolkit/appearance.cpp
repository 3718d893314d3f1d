#include "desktop/toolkit/appearance.h"

#include <QApplication>
#include <algorithm>

namespace quillmark::desktop {

namespace {

/// What `Slider1` at its highest takes from the brightness of a light and of a dark window.
constexpr double kDarkening = 0.4;
constexpr double kDarkeningOfDark = 0.28;

double LightLeft(bool dark, int dimming) {
    return 1 - (dark ? kDarkeningOfDark : kDarkening) * dimming / Appearance::kDarkest;
}

/// Light is taken from what is bright, and more of it from what is dark, so that what is written stays
/// readable.
QColor Dimmed(const QColor& colour, double left) {
    const double part = qGray(colour.rgb()) > 127 ? left : left * left;
    return QColor::fromRgbF(static_cast<float>(colour.redF() * part),
                            static_cast<float>(colour.greenF() * part),
                            static_cast<float>(colour.blueF() * part), colour.alphaF());
}

}  // namespace

Appearance::Appearance(QWidget& window)
    : window_(window), font_(QApplication::font()), palette_(QApplication::palette()) {
    ApplyPalette();
}

bool Appearance::SetScale(int perCent) {
    const int scale = std::clamp(perCent, kSmallest, kLargest);
    if (scale == scale_) return false;
    scale_ = scale;
    QFont font = font_;
    font.setPointSizeF(font_.pointSizeF() * scale / 100);
    window_.setFont(font);
    return true;
}

bool Appearance::SetDimming(int value) {
    const int dimming = std::clamp(value, 0, kDarkest);
    if (dimming == dimming_) return false;
    dimming_ = dimming;
    ApplyPalette();
    return true;
}

void Appearance::TakePalette() {
    palette_ = QApplication::palette();
    ApplyPalette();
}

QPalette DimmedPalette(const QPalette& bright, int dimming) {
    QPalette palette = bright;
    if (dimming == 0) return palette;
    const double left = LightLeft(IsDark(bright), dimming);
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto in = static_cast<QPalette::ColorGroup>(group);
            const auto as = static_cast<QPalette::ColorRole>(role);
            palette.setColor(in, as, Dimmed(bright.color(in, as), left));
        }
    }
    return palette;
}

StateColours DimmedStates(bool dark, int dimming) {
    StateColours colours = ThemeStates(dark);
    const double left = LightLeft(dark, dimming);
    for (QColor StateColours::*const colour : kStateColours) colours.*colour = Dimmed(colours.*colour, left);
    colours.shade.setAlphaF(static_cast<float>(1 - (1 - colours.shade.alphaF()) * left));
    return colours;
}

void Appearance::ApplyPalette() {
    colours_ = DimmedStates(IsDark(palette_), dimming_);
    window_.setPalette(DimmedPalette(palette_, dimming_));
}

}  // namespace quillmark::desktop
