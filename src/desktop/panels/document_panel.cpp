#include "desktop/panels/document_panel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"
#include "session/find.h"

namespace quillmark::desktop {

namespace {

const QString kLegal = QStringLiteral("legal");
constexpr double kBadgeFont = 0.85;  ///< of the list's font
constexpr int kPadding = 4;          ///< within the badge and around it
constexpr int kLegalRole = JobLine::kLegalRole;

/// A line that is not on legal paper has the outline of a badge under the pointer: it can be.
QRect DrawBadge(QPainter& painter, const QStyleOptionViewItem& option, const StateColours& colours,
                bool legal) {
    QFont font = option.font;
    font.setPointSizeF(font.pointSizeF() * kBadgeFont);
    const int width = QFontMetrics(font).horizontalAdvance(kLegal) + 3 * kPadding;
    const QRect line = option.rect.adjusted(0, 1, -kPadding, -1);
    const QRect badge(line.right() - width, line.top(), width, line.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    const QColor faint = option.palette.color(QPalette::Disabled, QPalette::Text);
    painter.setPen(legal ? QPen(Qt::NoPen) : QPen(faint));
    painter.setBrush(legal ? QBrush(colours.badge) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(badge, kPadding, kPadding);
    painter.setPen(legal ? colours.badgeText : faint);
    painter.drawText(badge, Qt::AlignCenter, kLegal);
    painter.restore();
    return badge;
}

}  // namespace

void JobLine::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem line = option;
    line.state &= ~QStyle::State_Selected;
    const bool legal = index.data(kLegalRole).toBool();
    if (!legal && !(option.state & QStyle::State_MouseOver))
        return QStyledItemDelegate::paint(painter, line, index);
    line.rect.setRight(DrawBadge(*painter, option, appearance_.Colours(), legal).left() - kPadding);
    QStyledItemDelegate::paint(painter, line, index);
}

DocumentList::DocumentList(const QString& name, QWidget* parent) : QListWidget(parent) {
    setObjectName(name);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void DocumentList::SetLines(const std::vector<std::string>& lines, bool follows) {
    if (lines == lines_) return;
    const int row = currentRow();
    const bool grows = follows && lines.size() > lines_.size() && !lines_.empty();
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
    const bool marks = selectionMode() == NoSelection;
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
    label1_ = new QLabel(tr("Forms and packa&ges"), this);
    label2_ = new QLabel(tr("&Job list"), this);
    filter_ = new QLineEdit(this);
    filter_->setObjectName(QStringLiteral("documentFilter"));
    filter_->setPlaceholderText(tr("Filter"));
    filter_->setClearButtonEnabled(true);
    filter_->setToolTip(tr("Words of a document's name, such as \"smoke\" (Ctrl+L)"));
    filter_->installEventFilter(this);
    Describe(
        filter_, tr("Filter of forms and packages"),
        tr("shows the documents whose names hold these words; Enter adds the first, Down goes to the list"));
    List1_ = new DocumentList(QStringLiteral("List1"), this);
    List2_ = new JobList(QStringLiteral("List2"), this);
    List2_->setItemDelegate(new JobLine(appearance, List2_));
    List2_->setSelectionMode(QAbstractItemView::NoSelection);
    List2_->OpenByDelete();
    label1_->setBuddy(List1_);
    label2_->setBuddy(List2_);
    Describe(List1_, tr("Forms and packages"), tr("Enter adds the document to the job list"));
    Describe(List2_, tr("Job list"),
             tr("Space selects a document for legal size, Delete takes it off the list, Alt+Up and Alt+Down "
                "move it"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    layout->addWidget(label1_);
    layout->addWidget(filter_);
    layout->addWidget(List1_, 3);
    layout->addWidget(label2_);
    layout->addWidget(List2_, 2);
    Connect();
}

void DocumentPanel::Connect() {
    connect(filter_, &QLineEdit::textChanged, this, &DocumentPanel::ShowCatalogue);
    connect(List1_, &DocumentList::Opened, this, [this](const std::string& line) {
        desk_.Do([&](MainScreen& screen) { screen.PickDocument(line); });
    });
    connect(List2_, &DocumentList::Opened, this, [this](const std::string& line) {
        desk_.Do([&](MainScreen& screen) { screen.DropDocument(line); });
    });
    connect(List2_, &JobList::LegalToggled, this, &DocumentPanel::ToggleLegal);
    connect(List2_, &JobList::Moved, this, [this](int line, int to) {
        const bool moved = desk_.Do([&](MainScreen& screen) {
            screen.MoveDocument(static_cast<std::size_t>(line), static_cast<std::size_t>(to));
        });
        if (moved) List2_->setCurrentRow(to, QItemSelectionModel::NoUpdate);
    });
}

void DocumentPanel::ToggleLegal(int line) {
    const std::vector<JobListLine>& list = desk_.State().List2;
    std::vector<std::string> legal;
    for (std::size_t i = 0; i < list.size(); ++i)
        if (list[i].selected != (static_cast<int>(i) == line)) legal.push_back(list[i].name);
    desk_.Do([&](MainScreen& screen) { screen.SelectLegal(legal); });
}

bool DocumentPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == filter_ && event->type() == QEvent::KeyPress)
        return TakeFilterKey(*static_cast<QKeyEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

bool DocumentPanel::TakeFilterKey(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Down:
            List1_->setFocus();
            if (List1_->count() > 0) List1_->setCurrentRow(0);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (key.modifiers() & Qt::ControlModifier) return false;
            if (List1_->count() > 0 && !filter_->text().isEmpty()) {
                const std::string line = List1_->Lines().front();
                filter_->selectAll();  // the next word begins anew
                desk_.Do([&](MainScreen& screen) { screen.PickDocument(line); });
            }
            return true;
        case Qt::Key_Escape:
            filter_->clear();
            return true;
        default:
            return false;
    }
}

void DocumentPanel::Show() {
    ShowCatalogue();
    ShowJobList();
}

void DocumentPanel::ShowCatalogue() {
    const ScreenState& state = desk_.State();
    const std::string sought = Utf8(filter_->text());
    std::vector<std::string> lines;
    std::ranges::copy_if(state.List1, std::back_inserter(lines),
                         [&](const std::string& line) { return HoldsWords(line, sought); });
    List1_->SetLines(lines, false);
    List1_->setEnabled(state.List1Enabled);
    filter_->setEnabled(state.List1Enabled);
    if (!state.List1Enabled) List1_->clearSelection();
    label1_->setText(lines.size() == state.List1.size()
                         ? tr("Forms and packa&ges")
                         : tr("Forms and packa&ges (%1 of %2)").arg(lines.size()).arg(state.List1.size()));
}

void DocumentPanel::ShowJobList() {
    const ScreenState& state = desk_.State();
    std::vector<std::string> lines;
    for (const JobListLine& line : state.List2) lines.push_back(line.name);
    List2_->SetLines(lines, true);
    for (int row = 0; row < List2_->count(); ++row) {
        const JobListLine& line = state.List2[static_cast<std::size_t>(row)];
        // The selection is gone when the choice closes; the paper stays.
        const bool legal = state.LegalList.find(line.name) != state.LegalList.npos;
        QListWidgetItem* item = List2_->item(row);
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
