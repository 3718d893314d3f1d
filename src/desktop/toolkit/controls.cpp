#include "desktop/toolkit/controls.h"

#include <QFrame>
#include <QPalette>
#include <algorithm>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

bool Mnemonics::Take(QChar letter) {
    const QChar key = letter.toUpper();
    if (!key.isLetterOrNumber() || taken_.contains(key)) return false;
    taken_.insert(key);
    return true;
}

QString Mnemonics::Mark(std::string_view text, char preferred) {
    QString marked = Shown(text);
    const auto place = [&]() -> qsizetype {
        const qsizetype wanted =
            preferred ? marked.indexOf(QLatin1Char(preferred), 0, Qt::CaseInsensitive) : -1;
        if (wanted >= 0 && Take(marked[wanted])) return wanted;
        for (qsizetype i = 0; i < marked.size(); ++i)
            if ((i == 0 || !marked[i - 1].isLetterOrNumber()) && Take(marked[i])) return i;
        for (qsizetype i = 0; i < marked.size(); ++i)
            if (Take(marked[i])) return i;
        return -1;
    }();
    const QString before =
        marked.left(std::max<qsizetype>(place, 0)).replace(QLatin1Char('&'), QLatin1String("&&"));
    const QString behind =
        marked.mid(std::max<qsizetype>(place, 0)).replace(QLatin1Char('&'), QLatin1String("&&"));
    return before + (place < 0 ? QString() : QStringLiteral("&")) + behind;
}

void Describe(QWidget* control, const QString& name, const QString& description) {
    control->setAccessibleName(name.trimmed());
    control->setAccessibleDescription(description.trimmed());
}

void Caption(QAbstractButton* widget, const Button& button, Mnemonics& keys, char preferred) {
    widget->setText(keys.Mark(button.caption, preferred));
    Describe(widget, Shown(button.caption));
    ShowButton(widget, button);
}

void ShowButton(QAbstractButton* widget, const Button& button) {
    widget->setEnabled(button.enabled);
    widget->setVisible(button.visible);
    widget->setToolTip(Shown(button.tooltip).trimmed());
    widget->setAccessibleDescription(widget->toolTip());
}

void MarkUnusual(QAbstractButton* widget, bool unusual) {
    QPalette palette;
    if (unusual) {
        palette.setColor(QPalette::Button, kHighlight);
        palette.setColor(QPalette::ButtonText, kHighlightedText);
    }
    widget->setPalette(palette);
}

int CompactButton::WidthOf(const QString& caption) const {
    constexpr int kPadding = 5;
    return fontMetrics().size(Qt::TextShowMnemonic, caption).width() + 2 * kPadding;
}

QSize CompactButton::sizeHint() const {
    return {std::max(WidthOf(text()), WidthOf(widest_)), QPushButton::sizeHint().height()};
}

void CompactButton::KeepRoomFor(const QString& caption) {
    if (caption == widest_) return;
    widest_ = caption;
    updateGeometry();
}

QLabel* NewGuidance(QWidget* window, std::string_view text) {
    auto* bar = new QLabel(Shown(text).trimmed(), window);
    bar->setTextFormat(Qt::PlainText);
    bar->setWordWrap(true);
    bar->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    bar->setMargin(bar->fontMetrics().averageCharWidth() / 2);
    Describe(bar, QStringLiteral("Guidance"), bar->text());
    return bar;
}

QSize RoomyRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize tight = QStyledItemDelegate::sizeHint(option, index);
    return {tight.width(), tight.height() + option.fontMetrics.height() / 3};
}

}  // namespace quillmark::desktop
