#include "desktop/panels/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"
#include "session/find.h"

namespace quillmark::desktop {

FindBar::FindBar(Desk& desk, QWidget* parent) : QFrame(parent), desk_(desk) {
    setObjectName(QStringLiteral("findBar"));
    auto* label = new QLabel(tr("Find"), this);
    box_ = new QLineEdit(this);
    box_->setObjectName(QStringLiteral("findBox"));
    box_->setPlaceholderText(tr("words of a field, its description or its value"));
    box_->setClearButtonEnabled(true);
    box_->installEventFilter(this);
    label->setBuddy(box_);
    Describe(box_, tr("Find a field or a value"),
             tr("Down and Up go from one to the next, Enter opens the row, Escape leaves"));
    count_ = new QLabel(this);
    count_->setObjectName(QStringLiteral("findCount"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(box_, 1);
    layout->addWidget(count_);
    connect(box_, &QLineEdit::textChanged, this, &FindBar::Search);
    hide();
}

void FindBar::Open() {
    if (desk_.State().grid.empty()) return desk_.Refuse(tr("there are no fields to look through yet"));
    show();
    box_->setFocus();
    box_->selectAll();
    Search();
}

void FindBar::Show() {
    if (desk_.State().grid.empty()) hide();
}

void FindBar::Search() {
    if (!isVisible()) return;
    rows_ = RowsHolding(Utf8(box_->text()), desk_.State());
    // From where one is, onwards.
    const int current = desk_.State().currentRow;
    const auto next =
        std::ranges::find_if(rows_, [current](std::size_t row) { return static_cast<int>(row) >= current; });
    at_ = next == rows_.end() ? 0 : static_cast<std::size_t>(next - rows_.begin());
    ShowRow();
}

void FindBar::Step(int by) {
    if (rows_.empty()) return;
    const auto count = static_cast<int>(rows_.size());
    at_ = static_cast<std::size_t>((static_cast<int>(at_) + by + count) % count);
    ShowRow();
}

void FindBar::ShowRow() {
    if (box_->text().trimmed().isEmpty()) return count_->clear();
    if (rows_.empty()) return count_->setText(tr("nothing"));
    count_->setText(tr("%1 of %2").arg(at_ + 1).arg(rows_.size()));
    const auto row = static_cast<int>(rows_[at_]);
    desk_.DoQuietly([row](MainScreen& screen) {
        if (screen.Editor().IsOpen()) screen.LoseFocus(ScreenFocus::Elsewhere);
        screen.MoveCursor(row);
        screen.LoseFocus(ScreenFocus::Elsewhere);
    });
}

void FindBar::Leave() {
    hide();
    Q_EMIT Left();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    switch (key.key()) {
        case Qt::Key_Down:
        case Qt::Key_F3:
            Step(key.modifiers() & Qt::ShiftModifier ? -1 : 1);
            return true;
        case Qt::Key_Up:
            Step(-1);
            return true;
        case Qt::Key_Escape:
            Leave();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (key.modifiers() & Qt::ControlModifier) return false;
            if (rows_.empty()) return true;
            hide();
            Q_EMIT RowWanted(rows_[at_]);
            return true;
        default:
            return false;
    }
}

}  // namespace quillmark::desktop
