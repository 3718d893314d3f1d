#include "desktop/guide/guide_window.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/guide/guide_pages.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kPictureWidth = 640;  // of the widest picture, so that a page fits beside the main screen
constexpr int kNameRole = Qt::UserRole;

/// The tables' lines and the space around their texts, which Markdown does not tell.
void FormatTables(QTextFrame* frame, const QPalette& palette) {
    for (QTextFrame* child : frame->childFrames()) {
        FormatTables(child, palette);
        auto* table = qobject_cast<QTextTable*>(child);
        if (!table) continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderCollapse(true);
        format.setBorderBrush(palette.mid());
        format.setCellPadding(5);
        format.setCellSpacing(0);
        format.setTopMargin(6);
        format.setBottomMargin(10);
        table->setFormat(format);
        QTextCursor texts(table->firstCursorPosition());
        texts.setPosition(table->lastPosition(), QTextCursor::KeepAnchor);
        QTextBlockFormat close;
        close.setTopMargin(0);
        close.setBottomMargin(0);
        texts.mergeBlockFormat(close);
    }
}

}  // namespace

void ShowGuide(QWidget* parent, std::string_view page) {
    QWidget* owner = parent ? parent->window() : nullptr;
    auto* guide = dynamic_cast<GuideWindow*>(owner);
    if (!guide && owner)
        guide = dynamic_cast<GuideWindow*>(owner->findChild<QWidget*>(QStringLiteral("Guide")));
    if (!guide) guide = new GuideWindow(owner);
    guide->Open(page);
    guide->show();
    guide->raise();
    guide->activateWindow();
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!key->matches(QKeySequence::HelpContents)) return false;
    auto* pressedIn = static_cast<QWidget*>(watched);
    ShowGuide(pressedIn, GuidePageFor(pressedIn));
    return true;
}

GuideBrowser::GuideBrowser(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("Page"));
    setOpenExternalLinks(true);
    document()->setDocumentMargin(fontMetrics().averageCharWidth() * 2);
    Describe(this, QStringLiteral("Page of the guide"));
}

QVariant GuideBrowser::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    QImage picture(QLatin1Char(':') + name.path());
    const qreal ratio = devicePixelRatioF();
    const int widest = qRound(kPictureWidth * ratio);
    if (picture.width() > widest) picture = picture.scaledToWidth(widest, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void GuideBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    QTextBrowser::doSetSource(name, type);
    Layout();
    if (name.hasFragment()) GoToHeading(name.fragment());
}

void GuideBrowser::Layout() {
    FormatTables(document()->rootFrame(), palette());
}

void GuideBrowser::GoToHeading(const QString& anchor) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || GuideAnchor(block.text()) != anchor) continue;
        moveCursor(QTextCursor::End);  // so that the heading ends up at the top
        setTextCursor(QTextCursor(block));
        return;
    }
}

GuideWindow::GuideWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("Guide"));
    setWindowTitle(QStringLiteral("Quillmark - User's Guide"));
    auto* halves = new QSplitter;
    halves->addWidget(NewContents());
    halves->addWidget(NewPage());
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    auto* column = new QVBoxLayout(this);
    column->addWidget(halves);
    ShowContents({});
    const QSize wanted(kPictureWidth + fontMetrics().averageCharWidth() * 52,
                       fontMetrics().lineSpacing() * 42);
    resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

QWidget* GuideWindow::NewContents() {
    search_ = new QLineEdit;
    search_->setObjectName(QStringLiteral("Search"));
    search_->setPlaceholderText(QStringLiteral("Search the guide (Ctrl+F)"));
    search_->setClearButtonEnabled(true);
    Describe(search_, QStringLiteral("Search the guide"), QStringLiteral("Enter goes on to the next place"));
    contents_ = new QListWidget;
    contents_->setObjectName(QStringLiteral("Contents"));
    contents_->setSpacing(1);
    Describe(contents_, QStringLiteral("Contents"));
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { ShowContents(text); });
    connect(search_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
    connect(contents_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item) Open(Utf8(item->data(kNameRole).toString()));
    });
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(search_);
    column->addWidget(contents_);
    auto* find = NewAction(QStringLiteral("Search"), QKeySequence::Find);
    connect(find, &QAction::triggered, search_, [this] {
        search_->setFocus();
        search_->selectAll();
    });
    return side;
}

QAction* GuideWindow::NewAction(const QString& text, QKeySequence keys) {
    auto* action = new QAction(text, this);
    action->setShortcut(keys);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, keys.toString(QKeySequence::NativeText)));
    addAction(action);
    return action;
}

QWidget* GuideWindow::NewPage() {
    browser_ = new GuideBrowser(this);
    auto* bar = new QHBoxLayout;
    const auto add = [&](const QString& text, const QKeySequence& keys, auto slot, auto available) {
        QAction* action = NewAction(text, keys);
        action->setEnabled(false);
        connect(action, &QAction::triggered, browser_, slot);
        connect(browser_, available, action, &QAction::setEnabled);
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        bar->addWidget(button);
    };
    add(QStringLiteral("Back"), QKeySequence::Back, &QTextBrowser::backward,
        &QTextBrowser::backwardAvailable);
    add(QStringLiteral("Forward"), QKeySequence::Forward, &QTextBrowser::forward,
        &QTextBrowser::forwardAvailable);
    bar->addStretch();
    connect(browser_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& source) { MarkCurrent(source); });
    auto* half = new QWidget;
    auto* column = new QVBoxLayout(half);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(bar);
    column->addWidget(browser_);
    return half;
}

void GuideWindow::Open(std::string_view page) {
    const std::size_t mark = page.find('#');
    QUrl address(GuideAddress(page.substr(0, mark)));
    if (mark != std::string_view::npos) address.setFragment(Shown(page.substr(mark + 1)));
    if (browser_->source() != address) browser_->setSource(address, QTextDocument::MarkdownResource);
    MarkFound();
}

void GuideWindow::ShowContents(const QString& searched) {
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    for (const std::string_view page : GuidePagesWith(searched.split(QLatin1Char(' '), Qt::SkipEmptyParts))) {
        auto* item = new QListWidgetItem(GuideTitle(page), contents_);
        item->setData(kNameRole, Shown(page));
    }
    contents_->setMinimumWidth(contents_->sizeHintForColumn(0) + contents_->frameWidth() * 2 +
                               fontMetrics().averageCharWidth() * 4);
    MarkCurrent(browser_->source());
    MarkFound();
}

void GuideWindow::MarkCurrent(const QUrl& source) {
    const QSignalBlocker quiet(contents_);
    const QString shown = source.fileName().section(QLatin1Char('.'), 0, 0);
    contents_->setCurrentRow(-1);
    for (int row = 0; row < contents_->count(); ++row)
        if (contents_->item(row)->data(kNameRole).toString() == shown) contents_->setCurrentRow(row);
}

void GuideWindow::MarkFound() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : search_->text().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        for (QTextCursor at = browser_->document()->find(word); !at.isNull();
             at = browser_->document()->find(word, at)) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = at;
            mark.format.setBackground(kHighlight);
            mark.format.setForeground(kHighlightedText);
            mark.format.setForeground(Qt::black);
            marks.append(mark);
        }
    }
    browser_->setExtraSelections(marks);
}

/// The next place on the page; after the last one, the next page that holds the words.
void GuideWindow::FindNext() {
    const QString word = search_->text().section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty);
    if (word.isEmpty() || contents_->count() == 0) return;
    if (contents_->currentRow() >= 0 && browser_->find(word)) return;
    contents_->setCurrentRow((contents_->currentRow() + 1) % contents_->count());
    browser_->moveCursor(QTextCursor::Start);
    browser_->find(word);
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    if (search_->text().isEmpty())
        close();
    else
        search_->clear();
}

}  // namespace quillmark::desktop
