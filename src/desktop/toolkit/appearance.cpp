#include "desktop/toolkit/appearance.h"

#include <QApplication>
#include <algorithm>

#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

namespace {

constexpr double kDarkening = 0.45;  ///< what `Slider1` at its highest takes from the brightness

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
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

void Appearance::TakeSystemPalette() {
    palette_ = QApplication::palette();
    ApplyPalette();
}

QColor Appearance::Dimmed(QColor colour) const {
    const double left = 1 - kDarkening * dimming_ / kDarkest;
    return QColor::fromRgbF(static_cast<float>(colour.redF() * left),
                            static_cast<float>(colour.greenF() * left),
                            static_cast<float>(colour.blueF() * left), static_cast<float>(colour.alphaF()));
}

/// Dimming takes light from the bright parts alone, so that what is written on them stays readable: from the
/// backgrounds of a light desktop, from the writing on a dark one.
void Appearance::ApplyPalette() {
    const bool dark = IsDark(palette_);
    QPalette palette = palette_;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto in = static_cast<QPalette::ColorGroup>(group);
            const auto as = static_cast<QPalette::ColorRole>(role);
            const QColor colour = palette_.color(in, as);
            if (dimming_ > 0 && colour.lightness() > 127) palette.setColor(in, as, Dimmed(colour));
        }
    }
    // clang-format off
    colours_ = {.activeRow = Dimmed(StateColour(0xC0FFC0)),
                .litNote   = Dimmed(StateColour(0x00FFFF)),
                .stateText = Qt::black,
                .jumpMark  = Dimmed(StateColour(0xE0E0E0)),
                .jumpText  = StateColour(0xFF0000),
                .template_ = Dimmed(StateColour(kHighlight)),
                .badge     = dark ? QColor(0x3A, 0x5A, 0x78) : Dimmed(QColor(0xCF, 0xE3, 0xF4)),
                .badgeText = dark ? Dimmed(QColor(0xE6, 0xF1, 0xFA)) : QColor(0x12, 0x3A, 0x5A),
                .alarm     = dark ? Dimmed(QColor(0xFF, 0x8A, 0x80)) : QColor(0xB0, 0x00, 0x00),
                .notice    = dark ? Dimmed(QColor(0x8A, 0xB4, 0xF8)) : QColor(0x00, 0x00, 0xC0)};
    // clang-format on
    window_.setPalette(palette);
}

}  // namespace quillmark::desktop
