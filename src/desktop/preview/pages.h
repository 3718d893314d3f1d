#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QMutex>
#include <QRectF>
#include <QSizeF>
#include <memory>

#include "desktop/preview/page_map.h"
#include "production/run/preview.h"

QT_BEGIN_NAMESPACE
class QPdfDocument;
class QBuffer;
QT_END_NAMESPACE

namespace quillmark::desktop {

/// The pages of one document as they were made from one state of the job. All of it may be used on any
/// thread.
class Pages {
 public:
    /// Null for what is no PDF, and where the program was built without the library that shows it.
    static std::shared_ptr<const Pages> Load(const QByteArray& pdf, Preview made);
    ~Pages();

    int Count() const { return static_cast<int>(sizes_.size()); }
    QSizeF SizeOf(int page) const { return sizes_.at(page); }  ///< in points
    const Preview& Made() const { return made_; }

    /// The page on white paper, so many pixels wide.
    QImage Picture(int page, int width) const;
    /// Where so much of the document's text stands on this page, in points.
    QList<QRectF> PlacesOn(int page, std::size_t at, std::size_t length) const;
    /// The value under this point of a page; null where there is none.
    const ValuePlace* ValueAt(int page, QPointF point) const;
    /// Of the values that stand on this page, those of which `wanted` holds.
    template <class Wanted>
    QList<QRectF> PlacesOf(int page, Wanted wanted) const {
        QList<QRectF> places;
        for (const ValuePlace& value : made_.values)
            if (wanted(value)) places += PlacesOn(page, value.at, value.length);
        return places;
    }
    /// The first page on which field n stands; -1 for none.
    int PageOf(int n) const;

 private:
    Pages() = default;

    Preview made_;
    std::unique_ptr<QBuffer> bytes_;
    std::unique_ptr<QPdfDocument> pdf_;
    QList<QSizeF> sizes_;
    PageMap map_;
};

}  // namespace quillmark::desktop
