#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "desktop/panels/main_buttons.h"
#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"

class QComboBox;

namespace quillmark::desktop {

/// The name of the job, and what stands beside it: naming, and the choice of a law firm in its place.
class NamePanel final : public QWidget {
    Q_OBJECT

 public:
    NamePanel(Desk& desk, MainButtons& buttons, const Appearance& appearance, QWidget* parent);

    void Show();
    QLineEdit* Box() const { return txtJobName_; }

 Q_SIGNALS:
    /// The name was none of a job: it led to another window, or to the end of the program.
    void LedElsewhere();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void ShowColours(const NameBox& box);

    Desk& desk_;
    const Appearance& appearance_;
    QLabel* label_;
    QLineEdit* txtJobName_;
};

}  // namespace quillmark::desktop
