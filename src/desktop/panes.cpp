#include "desktop/panes.h"

#include <QEvent>
#include <algorithm>

namespace quillmark::desktop {

namespace {

constexpr int kUsualColumns = 44;    ///< of the documents, in characters
constexpr double kUsualPage = 0.42;  ///< of what is beside the documents
constexpr int kHandle = 9;

int NarrowestOf(const QWidget* widget) {
    return widget->minimumSizeHint().width();
}

}  // namespace

Panes::Panes(QWidget* documents, QWidget* right, QSplitter* inner, QWidget* page, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), documents_(documents), right_(right), inner_(inner), page_(page) {
    for (QSplitter* splitter : {static_cast<QSplitter*>(this), inner}) {
        splitter->setChildrenCollapsible(false);
        splitter->setHandleWidth(kHandle);
    }
    addWidget(documents);
    addWidget(right);
    inner->addWidget(page);
    // Else the window could not get so narrow that the page has to leave.
    page->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    page->hide();
    inner->installEventFilter(this);
    connect(this, &QSplitter::splitterMoved, this, [this] {
        documentsWidth_ = sizes().first();
        Fit();
    });
    connect(inner, &QSplitter::splitterMoved, this, &Panes::TakeInner);
}

void Panes::SetWidths(int documents, int page) {
    documentsWidth_ = std::max(0, documents);
    pageWidth_ = std::max(0, page);
    Fit();
}

void Panes::WantPage(bool wanted) {
    pageWanted_ = wanted;
    Fit();
}

void Panes::PreferPage(bool preferred) {
    if (preferred == pagePreferred_) return;
    pagePreferred_ = preferred;
    Fit();
}

int Panes::NarrowestWork() const {
    return NarrowestOf(inner_->widget(0));
}

void Panes::Fit() {
    if (fitting_) return;
    fitting_ = true;
    const int side = NarrowestOf(documents_);
    const int beside = std::max(NarrowestOf(right_), NarrowestWork());
    const int besideWithPage = std::max(beside, NarrowestWork() + kHandle + kNarrowestPage);
    const bool fitsAll = width() >= side + kHandle + besideWithPage;
    const bool showsPage = pageWanted_ && (fitsAll || pagePreferred_);
    const bool showsDocuments = !showsPage || fitsAll;
    documents_->setVisible(showsDocuments);
    page_->setVisible(showsPage);
    if (showsDocuments) {
        const int usual = fontMetrics().averageCharWidth() * kUsualColumns;
        const int wanted = documentsWidth_ > 0 ? documentsWidth_ : usual;
        const int most = width() - kHandle - (showsPage ? besideWithPage : beside);
        const int given = std::max(side, std::min(wanted, most));
        setSizes({given, std::max(1, width() - kHandle - given)});
    }
    fitting_ = false;
    FitInner();
}

void Panes::FitInner() {
    if (page_->isHidden()) return;
    const int whole = inner_->width() - kHandle;
    const int usual = static_cast<int>(whole * kUsualPage);
    const int wanted = pageWidth_ > 0 ? pageWidth_ : usual;
    const int given = std::max(kNarrowestPage, std::min(wanted, whole - NarrowestWork()));
    inner_->setSizes({std::max(1, whole - given), given});
}

/// Drawn to nearly nothing the page is off.
void Panes::TakeInner() {
    const int width = inner_->sizes().last();
    if (width < kNarrowestPage / 2) return WantPage(false);
    pageWidth_ = std::max(width, kNarrowestPage);
}

void Panes::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    Fit();
}

bool Panes::eventFilter(QObject* watched, QEvent* event) {
    // It has its new width only behind this event.
    if (watched == inner_ && event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &Panes::FitInner, Qt::QueuedConnection);
    return QSplitter::eventFilter(watched, event);
}

}  // namespace quillmark::desktop
