#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// What CREATE has made, and what can be done with it: over the grid until it is closed, made anew or reset.
class FinishPanel final : public QFrame {
    Q_OBJECT

 public:
    FinishPanel(Desk& desk, QWidget* parent);

    /// Appears when there is something new to tell.
    void Show();
    /// How many pages the document has, as soon as that is known.
    void SetPages(int pages);
    /// How much is still open in the job.
    void SetOpen(std::size_t open);
    /// What this computer cannot do is not offered; printing without a printer says so.
    void Offer(bool mail, bool print, const QString& whyNoPrint);
    void SetMakingPdf(bool making);

 Q_SIGNALS:
    /// A new document is told of.
    void Told();
    void OpenWanted();
    void FolderWanted();
    void PdfWanted();
    void PrintWanted();
    void MailWanted();
    void BlanksWanted();

 private:
    template <class Signal>
    QPushButton* Make(const char* name, const QString& text, const QString& tip, Signal signal);
    void Tell();
    void ReadNotices();
    QString Facts() const;

    Desk& desk_;
    QLabel* what_;
    QLabel* facts_;
    QPushButton* open_;
    QPushButton* folder_;
    QPushButton* pdf_;
    QPushButton* print_;
    QPushButton* mail_;
    QPushButton* notices_;
    QPushButton* blanks_;
    std::size_t told_ = 0;  ///< the run that the panel speaks of
    int pages_ = 0;         ///< 0 until it is known
};

}  // namespace quillmark::desktop
