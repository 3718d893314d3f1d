#include "desktop/preview/pages.h"

#include <QBuffer>
#include <QPainter>

#ifdef QUILLMARK_PDF
#include <QPdfDocument>
#include <QPdfSelection>
#else
class QPdfDocument {};
#endif

namespace quillmark::desktop {

Pages::~Pages() = default;

#ifdef QUILLMARK_PDF

std::shared_ptr<const Pages> Pages::Load(const QByteArray& pdf, Preview made) {
    const std::shared_ptr<Pages> pages(new Pages);
    pages->made_ = std::move(made);
    pages->bytes_ = std::make_unique<QBuffer>();
    pages->bytes_->setData(pdf);
    pages->bytes_->open(QIODevice::ReadOnly);
    pages->pdf_ = std::make_unique<QPdfDocument>();
    pages->pdf_->load(pages->bytes_.get());
    if (pages->pdf_->status() != QPdfDocument::Status::Ready) return nullptr;
    std::vector<std::u32string> texts;
    for (int page = 0; page < pages->pdf_->pageCount(); ++page) {
        pages->sizes_.append(pages->pdf_->pagePointSize(page));
        texts.push_back(pages->pdf_->getAllText(page).text().toStdU32String());
    }
    pages->map_ = PageMap(pages->made_.text, texts);
    return pages;
}

QImage Pages::Picture(int page, int width) const {
    const QSizeF size = SizeOf(page);
    const int height = qMax(1, qRound(width * size.height() / size.width()));
    const QImage drawn = pdf_->render(page, QSize(width, height));
    QImage picture(QSize(width, height), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).drawImage(0, 0, drawn);
    return picture;
}

QList<QRectF> Pages::PlacesOn(int page, std::size_t at, std::size_t length) const {
    QList<QRectF> places;
    for (const PageSpan& span : map_.SpansOf(at, length)) {
        if (span.page != page) continue;
        const QPdfSelection words = pdf_->getSelectionAtIndex(page, span.index, span.length);
        for (const QPolygonF& piece : words.bounds()) places.append(piece.boundingRect());
    }
    return places;
}

const ValuePlace* Pages::ValueAt(int page, QPointF point) const {
    constexpr double kNear = 1.5;
    const QPdfSelection under =
        pdf_->getSelection(page, point - QPointF(kNear, 0), point + QPointF(kNear, 0));
    for (int index = under.startIndex(); index >= 0 && index <= under.endIndex(); ++index) {
        const auto at = map_.PlaceOf(page, index);
        if (!at) continue;
        for (const ValuePlace& value : made_.values)
            if (value.at <= *at && *at < value.at + value.length) return &value;
    }
    return nullptr;
}

#else

std::shared_ptr<const Pages> Pages::Load(const QByteArray&, Preview) {
    return nullptr;
}
QImage Pages::Picture(int, int) const {
    return {};
}
QList<QRectF> Pages::PlacesOn(int, std::size_t, std::size_t) const {
    return {};
}
const ValuePlace* Pages::ValueAt(int, QPointF) const {
    return nullptr;
}

#endif

int Pages::PageOf(int n) const {
    for (const ValuePlace& value : made_.values) {
        if (value.n != n) continue;
        const auto spans = map_.SpansOf(value.at, value.length);
        if (!spans.empty()) return spans.front().page;
    }
    return -1;
}

}  // namespace quillmark::desktop
