#pragma once

#include <QSlider>
#include <QToolButton>
#include <QWidget>

#include "desktop/toolkit/appearance.h"

namespace quillmark::desktop {

/// `lblResize` and `Slider1`: how large and how bright the windows are.
class ViewControls final : public QWidget {
    Q_OBJECT

 public:
    ViewControls(Appearance& appearance, QWidget* parent);

    /// Makes the windows a step larger (1) or smaller (-1), or puts them back to 100 per cent (0).
    void Resize(int direction);
    void Dim(int value);
    void ShowScale();

 Q_SIGNALS:
    void Dimmed();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QToolButton* MakeStep(const QString& text, const QString& name, int direction);

    Appearance& appearance_;
    QToolButton* lblResize_;
    QSlider* Slider1_;
};

}  // namespace quillmark::desktop
