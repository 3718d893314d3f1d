#pragma once

#include <QPointer>
#include <QThreadPool>
#include <filesystem>
#include <memory>
#include <vector>

#include "desktop/panels/finish_panel.h"
#include "desktop/preview/preview_pane.h"
#include "desktop/side_windows/blanks_window.h"
#include "production/run/preview.h"

namespace quillmark::desktop {

/// What follows from CREATE's end: the panel's buttons, and the list of what is still open wherever it shows.
class FinishFlow final : public QObject {
    Q_OBJECT

 public:
    /// The panel, the pane and the window must outlive the object's use.
    FinishFlow(Desk& desk, FinishPanel& panel, PreviewPane& pane, QWidget& window);
    ~FinishFlow() override;

    /// After every command.
    void Follow();
    /// What is still open, in a window of its own beside the grid.
    void ShowBlanks();

 Q_SIGNALS:
    void RowWanted(const Blank& blank);

 private:
    void Begin();
    void Open();
    void MakePdf();
    void TakePdf(const QString& failure, const std::filesystem::path& pdf);
    void Print();
    void Mail();
    void FindOpen();
    void TakeOpen(const std::vector<TypedEntry>& typed);
    std::filesystem::path Document() const;

    Desk& desk_;
    FinishPanel& panel_;
    PreviewPane& pane_;
    QWidget& window_;
    QPointer<BlanksWindow> blanks_;
    QThreadPool worker_;
    std::shared_ptr<const Snapshot> found_;  ///< the state of the job whose open fields show
    std::size_t left_ = 0;                   ///< runs that left for open fields, as far as that has been seen
};

}  // namespace quillmark::desktop
