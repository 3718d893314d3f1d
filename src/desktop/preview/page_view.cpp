#include "desktop/preview/page_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

namespace {

constexpr QColor kLit(255, 214, 0, 110);
constexpr QColor kOpen(255, 96, 64, 80);
constexpr QColor kOpenEdge(200, 40, 20);

}  // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("pageView"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    viewport()->setBackgroundRole(QPalette::Mid);
    setFocusPolicy(Qt::ClickFocus);
    Describe(this, tr("Pages"),
             tr("the document as it would be made now; a click on a value goes to its row"));
    worker_.setMaxThreadCount(1);
}

PageView::~PageView() {
    worker_.clear();
    worker_.waitForDone();
}

void PageView::Show(std::shared_ptr<const Pages> pages) {
    worker_.clear();
    drawing_.clear();
    pages_ = std::move(pages);
    // Pictures of the pages before stay until the new ones are drawn; their marks would be in wrong places.
    marks_.clear();
    pictures_.removeIf([this](const auto& picture) { return !pages_ || picture.key() >= pages_->Count(); });
    FitScrollBar();
    viewport()->update();
}

void PageView::Light(int n) {
    if (n == lit_) return;
    lit_ = n;
    ShowPageOf(n);
    viewport()->update();
}

void PageView::ShowPageOf(int n) {
    const int page = n > 0 && pages_ ? pages_->PageOf(n) : -1;
    if (page < 0) return;
    const auto [first, last] = PagesInSight();
    if (page < first || page > last)
        verticalScrollBar()->setValue(TopOf(page) + verticalScrollBar()->value());
}

bool PageView::IsDrawn() const {
    if (!pages_ || pages_->Count() == 0) return false;
    const auto picture = pictures_.constFind(PagesInSight().first);
    return picture != pictures_.constEnd() && picture->of.lock() == pages_;
}

int PageView::PageWidth() const {
    return std::max(1, viewport()->width() - 2 * kGap);
}

int PageView::PageHeight(int page) const {
    const QSizeF size = pages_->SizeOf(page);
    return qRound(PageWidth() * size.height() / size.width());
}

int PageView::TopOf(int page) const {
    int top = kGap - verticalScrollBar()->value();
    for (int before = 0; before < page; ++before) top += PageHeight(before) + kGap;
    return top;
}

std::pair<int, int> PageView::PagesInSight() const {
    int first = -1, last = -1;
    if (!pages_) return {first, last};
    int top = TopOf(0);
    for (int page = 0; page < pages_->Count() && top < viewport()->height(); ++page) {
        const int bottom = top + PageHeight(page);
        if (bottom > 0 && first < 0) first = page;
        if (bottom > 0) last = page;
        top = bottom + kGap;
    }
    return {first, last};
}

void PageView::FitScrollBar() {
    int height = kGap;
    for (int page = 0; pages_ && page < pages_->Count(); ++page) height += PageHeight(page) + kGap;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(fontMetrics().lineSpacing() * 2);
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    FitScrollBar();
}

/// A job in the background belongs to one set of pages; what it brings for another one is dropped.
void PageView::DrawPicture(int page) {
    const std::weak_ptr<const Pages> of = pages_;
    const qreal ratio = devicePixelRatioF();
    const int width = qRound(PageWidth() * ratio);
    drawing_.insert(page);
    worker_.start([this, of, page, width, ratio] {
        const auto pages = of.lock();
        if (!pages) return;
        QImage image = pages->Picture(page, width);
        image.setDevicePixelRatio(ratio);
        QMetaObject::invokeMethod(this, [this, of, page, image] {
            if (of.lock() != pages_) return;
            pictures_[page] = {image, of};
            drawing_.remove(page);
            viewport()->update();
            Q_EMIT Drawn();
        });
    });
}

void PageView::FindMarks(int page) {
    const std::weak_ptr<const Pages> of = pages_;
    const int field = lit_;
    Marks& present = marks_[page];
    const bool needsOpen = !present.isComplete;
    present.litField = field;
    present.isComplete = true;
    worker_.start([this, of, page, field, needsOpen] {
        const auto pages = of.lock();
        if (!pages) return;
        const auto lit =
            pages->PlacesOf(page, [&](const ValuePlace& v) { return field > 0 && v.n == field; });
        QList<QRectF> open;
        if (needsOpen) open = pages->PlacesOf(page, [](const ValuePlace& v) { return v.isOpen; });
        QMetaObject::invokeMethod(this, [this, of, page, field, needsOpen, lit, open] {
            if (of.lock() != pages_) return;
            Marks& marks = marks_[page];
            if (needsOpen) marks.open = open;
            if (marks.litField == field) marks.lit = lit;
            viewport()->update();
        });
    });
}

void PageView::Want(int page) {
    const auto picture = pictures_.constFind(page);
    const int width = qRound(PageWidth() * devicePixelRatioF());
    const bool isDrawn =
        picture != pictures_.constEnd() && picture->of.lock() == pages_ && picture->image.width() == width;
    if (!isDrawn && !drawing_.contains(page)) DrawPicture(page);
    const auto marks = marks_.constFind(page);
    if (marks == marks_.constEnd() || marks->litField != lit_) FindMarks(page);
}

void PageView::PaintPage(QPainter& painter, int page) {
    const QRect paper(kGap, TopOf(page), PageWidth(), PageHeight(page));
    painter.fillRect(paper, Qt::white);
    const auto picture = pictures_.constFind(page);
    if (picture != pictures_.constEnd()) painter.drawImage(paper, picture->image);
    const double scale = paper.width() / pages_->SizeOf(page).width();
    const auto place = [&](const QRectF& rect) {
        return QRectF(paper.topLeft() + rect.topLeft() * scale, rect.size() * scale).adjusted(-1, -1, 1, 1);
    };
    const Marks marks = marks_.value(page);
    for (const QRectF& rect : marks.open) {
        painter.fillRect(place(rect), kOpen);
        painter.fillRect(QRectF(place(rect).bottomLeft(), QSizeF(place(rect).width(), 1)), kOpenEdge);
    }
    for (const QRectF& rect : marks.lit) painter.fillRect(place(rect), kLit);
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().mid());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto [first, last] = PagesInSight();
    for (int page = first; page >= 0 && page <= last; ++page) {
        PaintPage(painter, page);
        Want(page);
    }
    // Pages far away can be drawn again.
    constexpr int kKept = 6;
    pictures_.removeIf([&, f = first, l = last](const auto& picture) {
        return picture.key() < f - kKept || picture.key() > l + kKept;
    });
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pages_) return;
    for (int page = 0; page < pages_->Count(); ++page) {
        const QRect paper(kGap, TopOf(page), PageWidth(), PageHeight(page));
        if (!paper.contains(event->position().toPoint())) continue;
        const double scale = paper.width() / pages_->SizeOf(page).width();
        const QPointF point = (event->position() - paper.topLeft()) / scale;
        if (const ValuePlace* value = pages_->ValueAt(page, point)) Q_EMIT ValueClicked(value->n);
        return;
    }
}

}  // namespace quillmark::desktop
