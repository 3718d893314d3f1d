#pragma once

#include "desktop/side_windows/tool_dialog.h"
#include "tools/envelopes/envelope_window.h"

class QBoxLayout;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

class EnvelopeView;

/// The envelope printer as a person sees it, with the envelope beside the fields as it will come out.
class EnvelopeDialog final : public ToolDialog {
 public:
    /// `model` must outlive the window.
    EnvelopeDialog(envelopes::EnvelopeWindow& model, QWidget* parent);

 protected:
    /// A line that is still untouched is selected as a whole when it is entered, for overtyping.
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QBoxLayout* NewAddressee();
    QWidget* NewSetup();
    void Follow() override;

    envelopes::EnvelopeWindow& envelope_;
    EnvelopeView* view_;
    QLabel* word_;  ///< about what is seen
    QWidget* setup_;
};

/// Shows the envelope printer that the main screen has opened, until it is left.
void ShowEnvelopes(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
