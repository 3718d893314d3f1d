#include "desktop/panels/document_panel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

const QString kLegal = QStringLiteral("legal");
constexpr int kLegalRole = Qt::UserRole;
constexpr double kBadgeFont = 0.85;  ///< of the list's font
constexpr int kPadding = 4;          ///< within the badge and around it

QRect DrawBadge(QPainter& painter, const QStyleOptionViewItem& option, const StateColours& colours) {
    QFont font = option.font;
    font.setPointSizeF(font.pointSizeF() * kBadgeFont);
    const int width = QFontMetrics(font).horizontalAdvance(kLegal) + 3 * kPadding;
    const QRect line = option.rect.adjusted(0, 1, -kPadding, -1);
    const QRect badge(line.right() - width, line.top(), width, line.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.badge);
    painter.drawRoundedRect(badge, kPadding, kPadding);
    painter.setPen(colours.badgeText);
    painter.drawText(badge, Qt::AlignCenter, kLegal);
    painter.restore();
    return badge;
}

}  // namespace

void JobLine::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem line = option;
    line.state &= ~QStyle::State_Selected;
    if (!index.data(kLegalRole).toBool()) return QStyledItemDelegate::paint(painter, line, index);
    line.rect.setRight(DrawBadge(*painter, option, appearance_.Colours()).left() - kPadding);
    QStyledItemDelegate::paint(painter, line, index);
}

DocumentList::DocumentList(const QString& name, QWidget* parent) : QListWidget(parent) {
    setObjectName(name);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void DocumentList::SetLines(const std::vector<std::string>& lines) {
    if (lines == lines_) return;
    const int row = currentRow();
    const bool grows = lines.size() > lines_.size() && !lines_.empty();
    lines_ = lines;
    clear();
    for (const std::string& line : lines) {
        auto* item = new QListWidgetItem(Shown(line), this);
        item->setToolTip(item->text());
    }
    if (grows)
        scrollToBottom();
    else if (row >= 0 && count() > 0)
        setCurrentRow(std::min(row, count() - 1), QItemSelectionModel::NoUpdate);
}

void DocumentList::OpenLine(int row) {
    if (row < 0 || row >= static_cast<int>(lines_.size())) return;
    const std::string line = lines_[static_cast<std::size_t>(row)];
    typeAhead_.Forget();
    Q_EMIT Opened(line);
}

void DocumentList::keyboardSearch(const QString& letter) {
    const int line = typeAhead_.Search(*model(), currentRow(), letter);
    const bool marks = selectionMode() == MultiSelection;
    if (line >= 0)
        setCurrentRow(line, marks ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect);
}

void DocumentList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || (openByDelete_ && key == Qt::Key_Delete))
        return OpenLine(currentRow());
    QListWidget::keyPressEvent(event);
}

void DocumentList::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) OpenLine(row(itemAt(event->position().toPoint())));
}

DocumentPanel::DocumentPanel(Desk& desk, const Appearance& appearance, QWidget* parent)
    : QWidget(parent), desk_(desk) {
    auto* label1 = new QLabel(tr("Forms and packa&ges"), this);
    label2_ = new QLabel(tr("&Job list"), this);
    List1_ = new DocumentList(QStringLiteral("List1"), this);
    List2_ = new DocumentList(QStringLiteral("List2"), this);
    List2_->setSelectionMode(QAbstractItemView::MultiSelection);
    List2_->setItemDelegate(new JobLine(appearance, List2_));
    List2_->OpenByDelete();
    label1->setBuddy(List1_);
    label2_->setBuddy(List2_);
    Describe(List1_, tr("Forms and packages"), tr("Enter adds the document to the job list"));
    Describe(List2_, tr("Job list"),
             tr("Space selects a document for legal size, Delete takes it off the list"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    layout->addWidget(label1);
    layout->addWidget(List1_, 3);
    layout->addWidget(label2_);
    layout->addWidget(List2_, 2);
    connect(List1_, &DocumentList::Opened, this, [this](const std::string& line) {
        desk_.Do([&](MainScreen& screen) { screen.PickDocument(line); });
    });
    connect(List2_, &DocumentList::Opened, this, [this](const std::string& line) {
        desk_.Do([&](MainScreen& screen) { screen.DropDocument(line); });
    });
    connect(List2_, &QListWidget::itemSelectionChanged, this, [this] {
        if (!showing_) SelectLegal();
    });
}

void DocumentPanel::SelectLegal() {
    std::vector<std::string> lines;
    for (int row = 0; row < List2_->count(); ++row)
        if (List2_->item(row)->isSelected()) lines.push_back(List2_->Lines()[static_cast<std::size_t>(row)]);
    desk_.Do([&](MainScreen& screen) { screen.SelectLegal(lines); });
}

void DocumentPanel::Show() {
    const ScreenState& state = desk_.State();
    showing_ = true;
    List1_->SetLines(state.List1);
    List1_->setEnabled(state.List1Enabled);
    if (!state.List1Enabled) List1_->clearSelection();
    ShowJobList();
    showing_ = false;
}

void DocumentPanel::ShowJobList() {
    const ScreenState& state = desk_.State();
    std::vector<std::string> lines;
    for (const JobListLine& line : state.List2) lines.push_back(line.name);
    List2_->SetLines(lines);
    for (int row = 0; row < List2_->count(); ++row) {
        const JobListLine& line = state.List2[static_cast<std::size_t>(row)];
        // The selection is gone when the choice closes; the paper stays.
        const bool legal = state.LegalList.find(line.name) != state.LegalList.npos;
        QListWidgetItem* item = List2_->item(row);
        item->setSelected(line.selected);
        item->setData(kLegalRole, legal);
        item->setData(Qt::AccessibleTextRole,
                      legal ? tr("%1, on legal paper").arg(item->text()) : item->text());
        item->setToolTip(legal ? tr("%1 (legal paper, 8.5 x 14)").arg(item->text()) : item->text());
    }
    List2_->setEnabled(state.List2Enabled);
    List2_->setToolTip(Shown(state.List2Tooltip()).trimmed());
    label2_->setText(lines.empty() ? tr("&Job list") : tr("&Job list (%1)").arg(lines.size()));
}

}  // namespace quillmark::desktop
