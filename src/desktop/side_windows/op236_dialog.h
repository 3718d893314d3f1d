#pragma once

#include "desktop/side_windows/tool_dialog.h"
#include "tools/op236/op236_window.h"

class QBoxLayout;
class QGridLayout;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

/// The conveyance tax return as a person sees it: addresses and particulars side by side, the exemptions
/// below them, the printer's settings in their place while they are open.
class OP236Dialog final : public ToolDialog {
 public:
    /// `model` must outlive the window.
    OP236Dialog(op236::OP236Window& model, QWidget* parent);

 protected:
    /// A click on a line's first character leaves no exemption, and so does Delete.
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget* NewReturn();
    QWidget* NewSettings();
    QWidget* NewSellers();
    QWidget* NewBuyers();
    QWidget* NewParticulars();
    QWidget* NewSigners();
    QBoxLayout* NewExemptions();
    void AddAddress(QGridLayout& grid, const char* caption, const char* street, const char* city);
    bool IsFirstCharacter(const QEvent& event) const;
    void Follow() override;

    op236::OP236Window& return_;
    QWidget* form_;
    QWidget* settings_;
    LinesView* rtbCode_ = nullptr;
    QLabel* codeCaption_ = nullptr;
    QLineEdit* Text9_ = nullptr;
    QString asked_;  ///< what `Text9` asks for, once it has been shown
};

/// Shows the return that the main screen has opened, until it is left.
void ShowReturn(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
