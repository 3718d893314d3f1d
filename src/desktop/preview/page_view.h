#pragma once

#include <QAbstractScrollArea>
#include <QHash>
#include <QSet>
#include <QThreadPool>
#include <QTimer>

#include "desktop/preview/pages.h"
#include "desktop/toolkit/appearance.h"

namespace quillmark::desktop {

/// Pages under one another, as wide as the view. Pictures and the places of values are worked out in the
/// background; until they are there, the last ones stand in.
class PageView final : public QAbstractScrollArea {
    Q_OBJECT

 public:
    PageView(const Appearance& appearance, QWidget* parent);
    ~PageView() override;

    /// The scroll position stays. Null shows nothing.
    void Show(std::shared_ptr<const Pages> pages);
    /// Lights the values of this field; 0 for none. The first of them comes into view.
    void Light(int n);
    /// Whether the first page in sight is drawn as it is now.
    bool IsDrawn() const;

 Q_SIGNALS:
    void ValueClicked(int n);
    /// The pages in sight are on the screen.
    void Drawn();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

 private:
    /// What is drawn over a page, in points.
    struct Marks {
        QList<QRectF> open;
        QList<QRectF> lit;
        int litField = -1;
        bool isComplete = false;
    };
    struct Picture {
        QImage image;
        std::weak_ptr<const Pages> of;
    };

    int PageWidth() const;
    int PageHeight(int page) const;
    int TopOf(int page) const;  ///< in the viewport
    std::pair<int, int> PagesInSight() const;
    void FitScrollBar();
    void ShowPageOf(int n);
    void Want(int page);
    void DrawPicture(int page);
    void FindMarks(int page);
    void PaintPage(QPainter& painter, int page);
    void ComeTo(int page, const QRectF& place);
    QRect PaperOf(int page) const;
    /// The page there and the point on it, in points; -1 beside the pages.
    std::pair<int, QPointF> PointAt(const QPoint& place) const;
    void ShowWhetherValue();

    static constexpr int kGap = 12;

    const Appearance& appearance_;
    std::shared_ptr<const Pages> pages_;
    QHash<int, Picture> pictures_;
    QHash<int, Marks> marks_;
    QSet<int> drawing_;
    int lit_ = 0;
    bool comes_ = false;  ///< what is lit has not come into view yet
    QTimer hover_;
    QThreadPool worker_;
};

}  // namespace quillmark::desktop
