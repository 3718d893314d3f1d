#include "desktop/toolkit/theme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {
namespace {

/// As WCAG 2.1 defines them.
double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

struct Pair {
    const char* what;
    QColor upper, ground;
};

using P = QPalette;

/// Every kind of text on every ground that it stands on.
std::vector<Pair> TextsOf(const P& palette, const StateColours& states) {
    std::vector<Pair> pairs;
    const auto on = [&](const char* what, QColor text, std::initializer_list<QColor> grounds) {
        for (const QColor& ground : grounds) pairs.push_back({what, text, ground});
    };
    const auto colour = [&](P::ColorRole role) { return palette.color(P::Active, role); };
    const QColor window = colour(P::Window), base = colour(P::Base), other = colour(P::AlternateBase);
    const QColor button = colour(P::Button), accent = colour(P::Highlight);
    const QColor hovered = Between(button, accent, 0.10F), pressed = Between(button, accent, 0.22F);
    const QColor hoveredLine = Between(base, accent, 0.08F);
    on("text", colour(P::Text), {base, other, window, states.heading, hoveredLine});
    on("window text", colour(P::WindowText), {window, base, states.heading});
    on("quiet text", colour(P::PlaceholderText), {window, base, other, states.heading});
    on("caption", colour(P::ButtonText), {button, hovered, pressed, window});
    on("selected text", colour(P::HighlightedText), {accent, Between(accent, Qt::black, 0.22F)});
    on("link", colour(P::Link), {base, window});
    on("visited link", colour(P::LinkVisited), {base, window});
    on("tool tip", colour(P::ToolTipText), {colour(P::ToolTipBase)});
    on("active row", states.activeText, {states.activeRow});
    on("active row, quiet", states.activeQuiet, {states.activeRow});
    on("lit note", states.litText, {states.litNote});
    on("jump label", states.jumpText, {states.jumpMark});
    on("badge", states.badgeText, {states.badge});
    on("alarm", states.alarm, {base, window});
    on("notice", states.notice, {base, window});
    return pairs;
}

/// What shows where a control is, or where the keyboard is.
std::vector<Pair> EdgesOf(const P& palette) {
    const auto colour = [&](P::ColorRole role) { return palette.color(P::Active, role); };
    std::vector<Pair> pairs;
    for (const P::ColorRole ground : {P::Window, P::Base}) {
        pairs.push_back({"edge", colour(P::Dark), colour(ground)});
        pairs.push_back({"ring", colour(P::Highlight), colour(ground)});
        pairs.push_back({"greyed text", palette.color(P::Disabled, P::WindowText), colour(ground)});
    }
    return pairs;
}

TEST(ThemeTest, TextAndEdgesStandOutInBothThemesAtEveryBrightness) {
    const auto check = [](const std::vector<Pair>& pairs, double least) {
        for (const Pair& pair : pairs)
            EXPECT_GE(Contrast(pair.upper, pair.ground), least)
                << pair.what << ' ' << pair.upper.name().toStdString() << " on "
                << pair.ground.name().toStdString();
    };
    for (const bool dark : {false, true}) {
        for (const int dimming : {0, 5, Appearance::kDarkest}) {
            SCOPED_TRACE(testing::Message() << (dark ? "dark" : "light") << ", dimmed by " << dimming);
            const P palette = DimmedPalette(ThemePalette(dark), dimming);
            EXPECT_EQ(IsDark(palette), dark);
            check(TextsOf(palette, DimmedStates(dark, dimming)), 4.5);
            if (dimming == 0) check(EdgesOf(palette), 3);
        }
    }
    EXPECT_GE(Contrast(kHighlightedText, kHighlight), 4.5);
}

}  // namespace
}  // namespace quillmark::desktop
