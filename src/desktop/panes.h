#pragma once

#include <QSplitter>

namespace quillmark::desktop {

/// The documents at the left, the work in the middle, the live page at the right, each as wide as the person
/// drew it. Where the window has no room for all three, the page gets narrower, then leaves; asked for there,
/// it takes the documents' place.
class Panes final : public QSplitter {
    Q_OBJECT

 public:
    static constexpr int kNarrowestPage = 220;  ///< pixels

    /// `inner` holds the work and the page, and stands within `right` with what belongs to both.
    Panes(QWidget* documents, QWidget* right, QSplitter* inner, QWidget* page, QWidget* parent);

    /// Widths in pixels; 0 leaves one to the window.
    void SetWidths(int documents, int page);
    int DocumentsWidth() const { return documentsWidth_; }
    int PageWidth() const { return pageWidth_; }

    /// Whether the page is shown when there is room.
    bool PageWanted() const { return pageWanted_; }
    void WantPage(bool wanted);
    /// Where there is room for one of them alone: the page instead of the documents, or the documents.
    void PreferPage(bool preferred);
    /// What the panes need has changed, with the font for instance.
    void Fit();

 protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    int NarrowestWork() const;
    void FitInner();
    void TakeInner();

    QWidget* documents_;
    QWidget* right_;
    QSplitter* inner_;
    QWidget* page_;
    int documentsWidth_ = 0;
    int pageWidth_ = 0;
    bool pageWanted_ = false;
    bool pagePreferred_ = false;
    bool fitting_ = false;
};

}  // namespace quillmark::desktop
