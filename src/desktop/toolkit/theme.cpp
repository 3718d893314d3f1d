#include "desktop/toolkit/theme.h"

#include <QApplication>
#include <QStyleHints>
#include <QToolTip>

#include "desktop/toolkit/quill_style.h"

namespace quillmark::desktop {

namespace {

struct Theme {
    QRgb window, base, alternate, text, quiet, disabled, button, line, edge;
    QRgb accent, onAccent, link, visited, tip, tipText, shadow;
};

// clang-format off
constexpr Theme kLight = {
    .window = 0xFFF5F4F1, .base     = 0xFFFFFFFF, .alternate = 0xFFFAF9F7,
    .text   = 0xFF1F2430, .quiet    = 0xFF5A616E, .disabled  = 0xFF838891,
    .button = 0xFFFFFFFF, .line     = 0xFFD9D7D1, .edge      = 0xFF84878D,
    .accent = 0xFF1D5C8A, .onAccent = 0xFFFFFFFF, .link      = 0xFF1D5C8A, .visited = 0xFF5B4A94,
    .tip    = 0xFF2A3038, .tipText  = 0xFFF5F4F1, .shadow    = 0xFF9A9892,
};
constexpr Theme kDark = {
    .window = 0xFF1F2227, .base     = 0xFF17191D, .alternate = 0xFF1B1E22,
    .text   = 0xFFE6E8EB, .quiet    = 0xFFA8AFB9, .disabled  = 0xFF757C87,
    .button = 0xFF2B3037, .line     = 0xFF3B414A, .edge      = 0xFF7C8490,
    .accent = 0xFF2F76AC, .onAccent = 0xFFFFFFFF, .link      = 0xFF8FC1E6, .visited = 0xFFB9A7E0,
    .tip    = 0xFF39404A, .tipText  = 0xFFF0F1F3, .shadow    = 0xFF000000,
};
// clang-format on

/// What the desktop itself has, whatever the application's palette is at the moment.
bool SystemIsDark() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown) return scheme == Qt::ColorScheme::Dark;
#endif
    QApplication::setPalette(QPalette());
    return IsDark(QApplication::palette());
}

}  // namespace

QPalette ThemePalette(bool dark) {
    const Theme& theme = dark ? kDark : kLight;
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, QRgb colour) { palette.setColor(role, QColor(colour)); };
    set(QPalette::Window, theme.window);
    set(QPalette::WindowText, theme.text);
    set(QPalette::Base, theme.base);
    set(QPalette::AlternateBase, theme.alternate);
    set(QPalette::Text, theme.text);
    set(QPalette::PlaceholderText, theme.quiet);
    set(QPalette::Button, theme.button);
    set(QPalette::ButtonText, theme.text);
    set(QPalette::BrightText, theme.onAccent);
    set(QPalette::Highlight, theme.accent);
    set(QPalette::HighlightedText, theme.onAccent);
    set(QPalette::Link, theme.link);
    set(QPalette::LinkVisited, theme.visited);
    set(QPalette::ToolTipBase, theme.tip);
    set(QPalette::ToolTipText, theme.tipText);
    set(QPalette::Light, theme.base);
    set(QPalette::Midlight, theme.alternate);
    set(QPalette::Mid, theme.line);
    set(QPalette::Dark, theme.edge);
    set(QPalette::Shadow, theme.shadow);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(theme.disabled));
    for (const auto role : {QPalette::Base, QPalette::Button})
        palette.setColor(QPalette::Disabled, role, QColor(theme.window));
    palette.setColor(QPalette::Disabled, QPalette::Dark, QColor(theme.line));
    return palette;
}

StateColours ThemeStates(bool dark) {
    // clang-format off
    if (dark)
        return {.activeRow = 0xFF1F4D36, .activeText = 0xFFF2F7F4, .activeQuiet = 0xFFB9CEC2,
                .litNote   = 0xFFF2E14C, .litText = 0xFF1F2430,
                .heading   = 0xFF23272D, .rule = 0xFF2A2E34,
                .jumpMark  = 0xFF2F3D4B, .jumpText = 0xFFA9D2F3,
                .badge     = 0xFF3A5A78, .badgeText = 0xFFE6F1FA,
                .alarm     = 0xFFFF9187, .notice = 0xFF8FC1E6,
                .desk      = 0xFF121417, .shade = QColor(0, 0, 0, 26)};
    return {.activeRow = 0xFFC0FFC0, .activeText = 0xFF12181F, .activeQuiet = 0xFF45504A,
            .litNote   = 0xFFFFFF00, .litText = 0xFF12181F,
            .heading   = 0xFFF1F0EC, .rule = 0xFFECEAE5,
            .jumpMark  = 0xFFE0E0E0, .jumpText = 0xFF0000FF,
            .badge     = 0xFFD3E3F0, .badgeText = 0xFF123A5A,
            .alarm     = 0xFFB3261E, .notice = 0xFF1D5C8A,
            .desk      = 0xFFDFDDD7, .shade = QColor(0, 0, 0, 0)};
    // clang-format on
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor Between(const QColor& a, const QColor& b, float part) {
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * part,
                            a.greenF() + (b.greenF() - a.greenF()) * part,
                            a.blueF() + (b.blueF() - a.blueF()) * part);
}

void ApplyTheme(ThemeChoice choice) {
    if (!qobject_cast<QuillStyle*>(QApplication::style())) QApplication::setStyle(new QuillStyle);
    const bool dark = choice == ThemeChoice::System ? SystemIsDark() : choice == ThemeChoice::Dark;
    const QPalette palette = ThemePalette(dark);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

}  // namespace quillmark::desktop
