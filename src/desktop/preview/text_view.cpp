#include "desktop/preview/text_view.h"

#include <QScrollBar>

#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

namespace {

QString Escaped(std::u32string_view text) {
    QString html = QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size())).toHtmlEscaped();
    html.replace(QLatin1Char('\v'), QStringLiteral("<br>"));
    html.replace(QLatin1Char('\r'), QStringLiteral("</p><p>"));
    html.remove(QChar(1));
    return html;
}

QString Marked(const ValuePlace& value, std::u32string_view words, bool lit) {
    const QString colour = lit ? QStringLiteral("#ffe680") : QStringLiteral("#ffd2c8");
    const QString style = lit || value.isOpen
                              ? QStringLiteral("color:black;text-decoration:none;background:%1").arg(colour)
                              : QStringLiteral("text-decoration:none;color:palette(text)");
    return QStringLiteral("<a href=\"%1\" style=\"%2\">%3</a>").arg(value.n).arg(style, Escaped(words));
}

}  // namespace

TextView::TextView(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("textView"));
    setOpenLinks(false);
    setFocusPolicy(Qt::ClickFocus);
    document()->setDefaultStyleSheet(QStringLiteral("p { margin: 0 0 2px 0; white-space: pre-wrap; }"));
    Describe(this, tr("Text"), tr("the document's text; a click on a value goes to its row"));
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (const int n = link.toString().toInt(); n > 0) Q_EMIT ValueClicked(n);
    });
}

void TextView::Show(const Preview& made, int lit) {
    const std::u32string_view text = made.text;
    QString html = QStringLiteral("<p>");
    std::size_t done = 0;
    for (const ValuePlace& value : made.values) {
        html += Escaped(text.substr(done, value.at - done));
        html += Marked(value, text.substr(value.at, value.length), lit > 0 && value.n == lit);
        done = value.at + value.length;
    }
    html += Escaped(text.substr(done)) + QStringLiteral("</p>");
    const int at = verticalScrollBar()->value();
    setHtml(html);
    verticalScrollBar()->setValue(at);
}

}  // namespace quillmark::desktop
