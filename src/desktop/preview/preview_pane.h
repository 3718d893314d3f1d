#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QStackedWidget>
#include <QThreadPool>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/preview/page_view.h"
#include "desktop/preview/renderer_process.h"
#include "desktop/preview/text_view.h"
#include "desktop/toolkit/desk.h"
#include "session/preview_command.h"

namespace quillmark::desktop {

/// The pages of the document in hand beside the grid, made anew in the background whenever the job has
/// changed. The last good page stays until the next one is there; where there are no pages there is the text.
class PreviewPane final : public QWidget {
    Q_OBJECT

 public:
    /// The program quillmark-preview: beside this one, or where the variable QUILLMARK_PREVIEW says.
    static QString RendererProgram();

    PreviewPane(Desk& desk, const Appearance& appearance, const QString& renderer, QWidget* parent);
    ~PreviewPane() override;

    /// As the state has it now: lights the current row's value, and makes the pages anew if it takes that.
    /// Does nothing while the pane is hidden.
    void Show();
    /// Tells how many pages a document has, once that is known; never where there is no renderer.
    void CountPages(const QString& document, std::function<void(int pages)> take);
    RendererProcess& Renderer() { return renderer_; }
    /// Milliseconds from the last change of the job to its pages on the screen.
    qint64 LastDelay() const { return lastDelay_; }

 Q_SIGNALS:
    /// The person wants no page.
    void CloseWanted();
    /// The person wants this field's row.
    void RowWanted(int n);
    /// What the job is now is on the screen.
    void Drawn();

 protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

 private:
    void FillList();
    void TakeChoice();
    std::string Wanted() const;
    std::string DocumentInHand() const;
    int CurrentField() const;
    std::size_t Fingerprint(const std::string& document) const;
    void Make();
    void TakeText(std::shared_ptr<const Preview> made, const QString& file);
    void TakePdf(const QByteArray& pdf);
    void TakePages(std::shared_ptr<const Pages> pages);
    void ShowText();
    void Say(const QString& text);
    void NothingToShow(const QString& why);
    QLayout* MakeHead();

    static constexpr int kAll = 1;        ///< line of the list
    static constexpr int kFirstName = 2;  ///< the job list's first entry

    Desk& desk_;
    RendererProcess renderer_;
    QComboBox* list_;
    QLabel* note_;
    QLabel* empty_;
    QStackedWidget* views_;
    PageView* pages_;
    TextView* text_;
    QTimer soon_;
    QTimer idle_;
    QElapsedTimer sinceChange_;
    QThreadPool worker_;
    std::vector<std::string> lines_;
    mutable std::string inHand_;
    std::optional<std::size_t> shown_;  ///< the fingerprint of what is being made or shown
    quint64 run_ = 0;                   ///< of the newest making; what older ones bring is dropped
    std::shared_ptr<const Preview> made_;
    std::shared_ptr<const Preview> rendering_;
    QString textOnly_;  ///< why, once there is no renderer
    bool hasPages_ = false;
    qint64 lastDelay_ = 0;
};

}  // namespace quillmark::desktop
