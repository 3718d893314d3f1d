#include "desktop/side_windows/blanks_window.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/field_registry.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kBlankRole = Qt::UserRole;  ///< which of the blanks a line is

QString Joined(const std::vector<std::string>& names, const QString& between) {
    QStringList texts;
    for (const std::string& name : names) texts.append(Shown(name));
    return texts.join(between);
}

QString HeadOf(const OpenList& open) {
    if (open.blanks.empty() && open.filledByCreate.empty()) return QObject::tr("No field is open.");
    const auto required = static_cast<qulonglong>(open.Required());
    const auto documents = static_cast<int>(open.withHoles.size());
    const auto filled = static_cast<qulonglong>(open.filledByCreate.size());
    QString head = QObject::tr("%1 required, %2 optional").arg(required).arg(open.blanks.size() - required);
    head += filled > 0 ? QObject::tr(", %1 that CREATE fills itself.").arg(filled) : QStringLiteral(".");
    if (documents > 0)
        head += QLatin1Char(' ') +
                (documents == 1 ? QObject::tr("1 document would be made with holes.")
                                : QObject::tr("%1 documents would be made with holes.").arg(documents));
    return head;
}

}  // namespace

BlanksWindow::BlanksWindow(QWidget* parent) : SideWindow(parent, "  STILL OPEN") {
    setObjectName(QStringLiteral("blanks"));
    setModal(false);
    head_ = new QLabel(this);
    head_->setObjectName(QStringLiteral("blanksHead"));
    list_ = new QTreeWidget(this);
    list_->setObjectName(QStringLiteral("blanksList"));
    list_->setHeaderLabels({tr("Open"), tr("In")});
    list_->setUniformRowHeights(true);
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    list_->header()->setStretchLastSection(true);
    Describe(list_, tr("Still open"), tr("Enter leads to the field's row"));
    auto* close = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(head_);
    layout->addWidget(list_, 1);
    layout->addWidget(close);
    connect(list_, &QTreeWidget::itemDoubleClicked, this, &BlanksWindow::Choose);
    connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
    list_->setFocus();
    ResizeTo(90, 26);
}

void BlanksWindow::Show(const OpenList& open, const Job& job) {
    const int current = list_->currentItem() ? list_->currentItem()->data(0, kBlankRole).toInt() : 0;
    open_ = open;
    head_->setText(HeadOf(open));
    list_->clear();
    for (const bool required : {true, false}) {
        const std::size_t count = required ? open.Required() : open.blanks.size() - open.Required();
        QTreeWidgetItem* section = AddSection(required ? tr("Required") : tr("Optional"), count);
        for (std::size_t i = 0; section && i < open.blanks.size(); ++i)
            if (open.blanks[i].required == required) AddBlank(section, i, job);
    }
    if (auto* section = AddSection(tr("CREATE fills these itself"), open.filledByCreate.size()))
        for (const std::string& marker : open.filledByCreate) AddLine(section, marker, {});
    if (auto* section = AddSection(tr("CREATE will ask"), open.questions.size()))
        for (const OpenList::Question& question : open.questions)
            AddLine(section, question.text, question.document);
    if (auto* section = AddSection(tr("Documents with holes"), open.withHoles.size()))
        for (const std::string& name : open.withHoles) AddLine(section, name, {});
    if (auto* section = AddSection(tr("Documents without a text yet"), open.withoutText.size()))
        for (const std::string& name : open.withoutText) AddLine(section, name, {});
    if (auto* section = AddSection(tr("Documents that cannot be made"), open.failures.size()))
        for (const OpenList::Failure& failure : open.failures)
            AddLine(section, failure.document, failure.why);
    list_->expandAll();
    for (QTreeWidgetItemIterator item(list_); *item; ++item) {
        if (!((*item)->flags() & Qt::ItemIsSelectable)) continue;
        list_->setCurrentItem(*item);
        if ((*item)->data(0, kBlankRole).toInt() >= current) break;
    }
}

/// None for nothing.
QTreeWidgetItem* BlanksWindow::AddSection(const QString& head, std::size_t count) {
    if (count == 0) return nullptr;
    auto* section = new QTreeWidgetItem(list_, {tr("%1 (%2)").arg(head).arg(count)});
    section->setFlags(Qt::ItemIsEnabled);
    section->setFirstColumnSpanned(true);
    QFont bold = list_->font();
    bold.setBold(true);
    section->setFont(0, bold);
    return section;
}

void BlanksWindow::AddBlank(QTreeWidgetItem* section, std::size_t index, const Job& job) {
    const Blank& blank = open_.blanks[index];
    auto* item =
        new QTreeWidgetItem(section, {Shown(blank.marker), Joined(blank.documents, QStringLiteral(", "))});
    item->setData(0, kBlankRole, static_cast<int>(index));
    QString tip = blank.n > 0 ? Shown(FieldDescription(blank.n, job)).trimmed() : QString();
    if (!blank.hasRow) {
        tip = tr("No line of the grid asks for it: the firm's defaults fill it, or the form itself");
        item->setForeground(0, palette().brush(QPalette::Disabled, QPalette::Text));
    }
    item->setToolTip(0, tip);
    item->setToolTip(1, Joined(blank.documents, QStringLiteral("\n")));
}

void BlanksWindow::AddLine(QTreeWidgetItem* section, const std::string& what, const std::string& where) {
    auto* item = new QTreeWidgetItem(section, {Shown(what).simplified(), Shown(where).simplified()});
    item->setData(0, kBlankRole, -1);
    item->setToolTip(0, Shown(what));
    item->setToolTip(1, Shown(where));
}

void BlanksWindow::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && list_->hasFocus() && list_->currentItem()) return Choose(list_->currentItem());
    SideWindow::keyPressEvent(event);
}

void BlanksWindow::Choose(QTreeWidgetItem* item) {
    const int index = item->parent() ? item->data(0, kBlankRole).toInt() : -1;
    if (index < 0 || !open_.blanks[static_cast<std::size_t>(index)].hasRow) return;
    const Blank blank = open_.blanks[static_cast<std::size_t>(index)];
    Q_EMIT RowWanted(blank);
}

}  // namespace quillmark::desktop
