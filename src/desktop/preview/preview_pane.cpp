#include "desktop/preview/preview_pane.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QStandardPaths>
#include <QToolButton>
#include <QVBoxLayout>
#include <functional>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"
#include "production/run/create.h"
#include "selection/asking_documents.h"

namespace quillmark::desktop {

namespace {

constexpr int kIdleLimit = 5 * 60 * 1000;  ///< milliseconds that a hidden pane keeps its renderer

QString ProfileFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/quillmark/renderer");
}

void Mix(std::size_t& hash, std::string_view text) {
    hash = hash * 1099511628211u ^ std::hash<std::string_view>{}(text);
}

}  // namespace

QString PreviewPane::RendererProgram() {
    const QString said = qEnvironmentVariable("QUILLMARK_PREVIEW");
    if (!said.isEmpty()) return said;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/quillmark-preview");
}

PreviewPane::PreviewPane(Desk& desk, const Appearance& appearance, const QString& renderer, QWidget* parent)
    : QWidget(parent), desk_(desk), renderer_(renderer, ProfileFolder(), this) {
    setObjectName(QStringLiteral("previewPane"));
    note_ = new QLabel(this);
    note_->setWordWrap(true);
    note_->setFrameStyle(QFrame::StyledPanel);
    note_->setBackgroundRole(QPalette::Base);
    note_->setMargin(6);
    note_->setVisible(false);
    views_ = new QStackedWidget(this);
    pages_ = new PageView(appearance, views_);
    text_ = new TextView(views_);
    empty_ = new QLabel(views_);
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    empty_->setForegroundRole(QPalette::PlaceholderText);
    empty_->setFrameStyle(QFrame::StyledPanel);
    empty_->setMargin(20);
    for (QWidget* view :
         {static_cast<QWidget*>(text_), static_cast<QWidget*>(pages_), static_cast<QWidget*>(empty_)})
        views_->addWidget(view);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addLayout(MakeHead());
    layout->addWidget(note_);
    layout->addWidget(views_, 1);
    worker_.setMaxThreadCount(1);
    soon_.setSingleShot(true);
    idle_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, &PreviewPane::Make);
    connect(&idle_, &QTimer::timeout, this, [this] { renderer_.Stop(); });
    connect(list_, &QComboBox::activated, this, &PreviewPane::TakeChoice);
    connect(pages_, &PageView::ValueClicked, this, &PreviewPane::RowWanted);
    connect(text_, &TextView::ValueClicked, this, &PreviewPane::RowWanted);
    connect(pages_, &PageView::Drawn, this, [this] {
        if (!pages_->IsDrawn() || soon_.isActive() || worker_.activeThreadCount() > 0) return;
        lastDelay_ = sinceChange_.elapsed();
        Q_EMIT Drawn();
    });
    connect(&renderer_, &RendererProcess::Rendered, this, &PreviewPane::TakePdf);
    connect(&renderer_, &RendererProcess::Failed, this, [this](const QString& why) {
        Say(tr("This document has no pages at the moment (%1).").arg(why));
    });
    connect(&renderer_, &RendererProcess::GivenUp, this, [this](const QString& why) {
        hasPages_ = false;
        textOnly_ = tr("Text only (%1). Pages need LibreOffice Writer, on Debian and Ubuntu the package "
                       "libreoffice-writer.")
                        .arg(why);
        Say(textOnly_);
        ShowText();
    });
}

/// Which document, and the way to close.
QLayout* PreviewPane::MakeHead() {
    list_ = new QComboBox(this);
    list_->setObjectName(QStringLiteral("previewList"));
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list_->setMinimumContentsLength(12);
    list_->setFocusPolicy(Qt::TabFocus);
    list_->setToolTip(tr("the document whose pages are shown"));
    Describe(list_, tr("Document shown"));
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("\u2715"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::TabFocus);
    close->setToolTip(tr("closes the live page (F6)"));
    Describe(close, tr("Close the live page"), close->toolTip());
    connect(close, &QToolButton::clicked, this, &PreviewPane::CloseWanted);
    auto* head = new QHBoxLayout;
    head->setSpacing(4);
    head->addWidget(list_, 1);
    head->addWidget(close);
    return head;
}

PreviewPane::~PreviewPane() {
    worker_.clear();
    worker_.waitForDone();
}

void PreviewPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    idle_.stop();
    renderer_.Start();
    Show();
}

void PreviewPane::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    idle_.start(kIdleLimit);
}

void PreviewPane::Show() {
    if (!isVisible() || desk_.IsBusy()) return;
    FillList();
    const std::string document = Wanted();
    if (desk_.State().List2.empty())
        return NothingToShow(tr("The pages appear here once there are documents."));
    const std::size_t now = Fingerprint(document);
    if (shown_ != now) {
        shown_ = now;
        sinceChange_.start();
        soon_.start(0);  // when the key that did it has been dealt with
    }
    const int lit = CurrentField();
    pages_->Light(lit);
    if (views_->currentWidget() == text_) ShowText();
}

void PreviewPane::NothingToShow(const QString& why) {
    ++run_;
    shown_.reset();
    made_.reset();
    pages_->Show(nullptr);
    hasPages_ = false;
    text_->clear();
    empty_->setText(why);
    views_->setCurrentWidget(empty_);
    Say({});
}

void PreviewPane::FillList() {
    std::vector<std::string> lines;
    for (const JobListLine& line : desk_.State().List2) lines.push_back(line.name);
    if (lines == lines_ && list_->count() > 0) return;
    const QString chosen = list_->currentIndex() >= kFirstName ? list_->currentText() : QString();
    const int index = list_->currentIndex();
    lines_ = lines;
    list_->clear();
    list_->addItem(tr("The document in hand"));
    list_->addItem(tr("All documents"));
    for (const std::string& line : lines) list_->addItem(Shown(line));
    const int again = chosen.isEmpty() ? index : list_->findText(chosen);
    list_->setCurrentIndex(std::max(0, again));
}

void PreviewPane::TakeChoice() {
    Show();
}

int PreviewPane::CurrentField() const {
    const ScreenState& state = desk_.State();
    const int editing = desk_.Editor().EditField;
    const int row = state.currentRow;
    if (desk_.Editor().EditRow >= 0 && editing > 0) return editing;
    return row >= 0 && row < static_cast<int>(state.grid.size()) ? state.grid[static_cast<std::size_t>(row)].n
                                                                 : 0;
}

/// The one shown before as long as it asks for the field, so that pages do not jump from row to row.
std::string PreviewPane::DocumentInHand() const {
    const auto asking = DocumentsAsking(CurrentField(), desk_.State());
    const bool isListed = std::ranges::find(lines_, inHand_) != lines_.end();
    const bool stays = isListed && (asking.empty() || std::ranges::find(asking, inHand_) != asking.end());
    if (!stays) inHand_ = asking.empty() ? (lines_.empty() ? std::string() : lines_.front()) : asking.front();
    return inHand_;
}

/// Empty for all.
std::string PreviewPane::Wanted() const {
    const int index = list_->currentIndex();
    if (index == kAll) return {};
    if (index >= kFirstName) return Utf8(list_->currentText());
    return DocumentInHand();
}

/// Of all that pages are made from.
std::size_t PreviewPane::Fingerprint(const std::string& document) const {
    const ScreenState& state = desk_.State();
    std::size_t hash = 0;
    Mix(hash, document);
    Mix(hash, state.txtJobName.text);
    Mix(hash, state.LegalList);
    for (const JobListLine& line : state.List2) Mix(hash, line.name);
    for (int n = 1; n <= kFields; ++n) {
        Mix(hash, state.job.D(n));
        Mix(hash, state.job.txtField(n).tag);
    }
    for (int option = 1; option <= kOptions; ++option) Mix(hash, state.job.optConf(option) ? "1" : "0");
    for (const auto& [marker, value] : state.job.userFields) Mix(hash, value);
    for (const std::string& picture : state.job.FieldPictures)
        if (!picture.empty()) Mix(hash, picture);
    return hash;
}

void PreviewPane::Make() {
    if (!isVisible() || desk_.IsBusy()) return;
    const quint64 run = ++run_;
    std::shared_ptr<const PreviewOrder> order;
    try {
        order = std::make_shared<const PreviewOrder>(OrderOfPreview(desk_.Screen(), Wanted()));
    } catch (const NotAllowed&) {
        return;
    }
    // Each in a file of its own: the renderer may still be reading the one before.
    const QString file = renderer_.Work() + QStringLiteral("/page-%1.docx").arg(run % 4);
    worker_.clear();
    worker_.start([this, run, order, file] {
        std::shared_ptr<const Preview> made;
        QString why;
        try {
            made = std::make_shared<const Preview>(MakePreview(*order, PathOf(Utf8(file))));
        } catch (const std::exception& failure) {
            why = Shown(failure.what());
        }
        QMetaObject::invokeMethod(this, [this, run, made, why, file] {
            if (run != run_) return;
            if (made) return TakeText(made, file);
            Say(tr("This document cannot be made at the moment: %1").arg(why));
        });
    });
}

void PreviewPane::TakeText(std::shared_ptr<const Preview> made, const QString& file) {
    made_ = std::move(made);
    QStringList notes(textOnly_);
    if (!made_->missing.empty()) notes += tr("Not shown: %1").arg(Shown(made_->missing.front()));
    Say(notes.join(QLatin1Char('\n')).trimmed());
    if (!hasPages_) ShowText();
    rendering_ = made_;
    renderer_.Render(file);
}

/// The renderer answers the requests that it got, and it got only the newest.
void PreviewPane::TakePdf(const QByteArray& pdf) {
    const quint64 run = run_;
    if (!rendering_ || rendering_ != made_) return;
    worker_.start([this, run, pdf, made = rendering_] {
        auto pages = Pages::Load(pdf, *made);
        QMetaObject::invokeMethod(this, [this, run, pages] {
            if (run == run_) TakePages(pages);
        });
    });
}

void PreviewPane::TakePages(std::shared_ptr<const Pages> pages) {
    if (!pages) return;
    hasPages_ = true;
    pages_->Show(std::move(pages));
    views_->setCurrentWidget(pages_);
}

void PreviewPane::CountPages(const QString& document, std::function<void(int)> take) {
    if (!isVisible()) idle_.start(kIdleLimit);
    renderer_.RenderAside(document, [take = std::move(take)](const QByteArray& pdf) {
        if (const auto pages = pdf.isEmpty() ? nullptr : Pages::Load(pdf, {})) take(pages->Count());
    });
}

void PreviewPane::ShowText() {
    views_->setCurrentWidget(text_);
    if (made_) text_->Show(*made_, CurrentField());
}

void PreviewPane::Say(const QString& text) {
    note_->setText(text);
    note_->setVisible(!text.isEmpty());
}

}  // namespace quillmark::desktop
