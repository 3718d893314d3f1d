#include "desktop/preview/page_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

namespace {

// Over white paper in every theme.
constexpr QColor kLit(255, 221, 0, 120);
constexpr QColor kLitEdge(122, 92, 0);
constexpr QColor kOpen(255, 96, 64, 70);
constexpr QColor kOpenEdge(179, 38, 30);
constexpr int kHoverDelay = 50;  ///< milliseconds

}  // namespace

PageView::PageView(const Appearance& appearance, QWidget* parent)
    : QAbstractScrollArea(parent), appearance_(appearance) {
    setObjectName(QStringLiteral("pageView"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    viewport()->setMouseTracking(true);
    hover_.setSingleShot(true);
    connect(&hover_, &QTimer::timeout, this, &PageView::ShowWhetherValue);
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
    if (comes_) ShowPageOf(lit_);
    viewport()->update();
}

void PageView::Light(int n) {
    if (n == lit_) return;
    lit_ = n;
    comes_ = n > 0;
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

void PageView::ComeTo(int page, const QRectF& place) {
    comes_ = false;
    const double scale = PageWidth() / pages_->SizeOf(page).width();
    const int top = TopOf(page) + qRound(place.top() * scale);
    const int bottom = TopOf(page) + qRound(place.bottom() * scale);
    const int room = viewport()->height() / 6;
    QScrollBar& bar = *verticalScrollBar();
    if (bottom > viewport()->height() - room)
        bar.setValue(bar.value() + bottom - viewport()->height() + 2 * room);
    else if (top < room)
        bar.setValue(bar.value() + top - 2 * room);
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
            if (comes_ && field == lit_ && !lit.isEmpty()) ComeTo(page, lit.first());
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
    const QRect paper = PaperOf(page);
    painter.fillRect(paper.adjusted(-1, -1, 1, 1), palette().mid());
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
    painter.setPen(kLitEdge);
    painter.setBrush(kLit);
    for (const QRectF& rect : marks.lit) painter.drawRect(place(rect));
    painter.fillRect(paper, appearance_.Colours().shade);
}

QRect PageView::PaperOf(int page) const {
    return {kGap, TopOf(page), PageWidth(), PageHeight(page)};
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), appearance_.Colours().desk);
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

std::pair<int, QPointF> PageView::PointAt(const QPoint& place) const {
    for (int page = 0; pages_ && page < pages_->Count(); ++page) {
        const QRect paper = PaperOf(page);
        if (!paper.contains(place)) continue;
        const double scale = paper.width() / pages_->SizeOf(page).width();
        return {page, QPointF(place - paper.topLeft()) / scale};
    }
    return {-1, {}};
}

void PageView::mousePressEvent(QMouseEvent* event) {
    const auto [page, point] = PointAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || page < 0) return;
    if (const ValuePlace* value = pages_->ValueAt(page, point)) Q_EMIT ValueClicked(value->n);
}

void PageView::mouseMoveEvent(QMouseEvent*) {
    if (!hover_.isActive()) hover_.start(kHoverDelay);
}

/// The pointer becomes a hand over a value, found in the background like all that is read from pages.
void PageView::ShowWhetherValue() {
    const auto [page, point] = PointAt(viewport()->mapFromGlobal(QCursor::pos()));
    if (page < 0) return viewport()->unsetCursor();
    worker_.start([this, of = std::weak_ptr<const Pages>(pages_), page = page, point = point] {
        const auto pages = of.lock();
        const bool isValue = pages && pages->ValueAt(page, point);
        QMetaObject::invokeMethod(this, [this, isValue] {
            viewport()->setCursor(isValue ? Qt::PointingHandCursor : Qt::ArrowCursor);
        });
    });
}

}  // namespace quillmark::desktop
