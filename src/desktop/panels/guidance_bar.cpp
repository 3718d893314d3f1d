#include "desktop/panels/guidance_bar.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

/// The session's refusals are parts of a sentence.
QString Sentence(QString text) {
    if (!text.isEmpty()) text.front() = text.front().toUpper();
    if (!text.isEmpty() && text.back().isLetterOrNumber()) text += QLatin1Char('.');
    return text;
}

}  // namespace

GuidanceBar::GuidanceBar(Desk& desk, const Appearance& appearance, QWidget* parent)
    : QLabel(parent), desk_(desk), appearance_(appearance) {
    setObjectName(QStringLiteral("picInfo"));
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setBackgroundRole(QPalette::Base);
    Describe(this, tr("Guidance"));
    FitTwoLines();
}

/// The grid below does not move when the text changes.
void GuidanceBar::FitTwoLines() {
    setMargin(4);
    setFixedHeight(2 * fontMetrics().lineSpacing() + 12);
}

void GuidanceBar::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitTwoLines();
}

void GuidanceBar::Show() {
    const ScreenState& state = desk_.State();
    const bool coloured = state.picInfoColours.text == state.picInfo && !state.picInfoColours.spans.empty();
    const QString plain = Shown(state.picInfo).trimmed();
    Say(plain, coloured ? Coloured() : plain, coloured);
}

/// The text with its coloured spans, as rich text.
QString GuidanceBar::Coloured() const {
    const ScreenState& state = desk_.State();
    const std::string_view text = state.picInfo;
    QString rich;
    std::size_t done = 0;
    const auto add = [&](std::size_t end) {
        rich += Shown(text.substr(done, end - done)).toHtmlEscaped();
        done = end;
    };
    for (const InfoColours::Span& span : state.picInfoColours.spans) {
        if (span.begin < done || span.begin > text.size()) continue;
        add(span.begin);
        rich += QStringLiteral("<span style=\"color:%1\">").arg(ColourOf(span.colour).name());
        add(std::min(text.size(), span.begin + span.length));
        rich += QStringLiteral("</span>");
    }
    add(text.size());
    return rich;
}

QColor GuidanceBar::ColourOf(InfoColour colour) const {
    switch (colour) {
        case InfoColour::Red:
            return appearance_.Colours().alarm;
        case InfoColour::Blue:
            return appearance_.Colours().notice;
        case InfoColour::Black:
            break;
    }
    return palette().color(QPalette::WindowText);
}

void GuidanceBar::ShowRefusal(const QString& reason) {
    QApplication::beep();
    const QString sentence = Sentence(reason);
    Say(sentence, sentence, false);
}

void GuidanceBar::Say(const QString& plain, const QString& shown, bool rich) {
    setTextFormat(rich ? Qt::RichText : Qt::PlainText);
    setText(shown);
    if (accessibleDescription() == plain) return;
    setToolTip(plain);
    setAccessibleDescription(plain);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

}  // namespace quillmark::desktop
