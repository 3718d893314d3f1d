#pragma once

#include <QWidget>
#include <array>

#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// The labels that lead to the groups of the grid; Alt and a digit do the same.
class JumpBar final : public QWidget {
    Q_OBJECT

 public:
    JumpBar(Desk& desk, const Appearance& appearance, QWidget* parent);

    void Show();
    /// With captions of two lines, which come where there is no room for those of one.
    QSize minimumSizeHint() const override;

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    static constexpr int kLabels = 6;

    void FitFont();
    void FitCaptions();
    QString CaptionOf(std::size_t g, bool complete, bool narrow) const;
    int WidthNeeded(bool narrow) const;

    Desk& desk_;
    const Appearance& appearance_;
    bool narrow_ = false;
    std::array<CompactButton*, kLabels + 1> lblJump_ = {};
};

}  // namespace quillmark::desktop
