#pragma once

#include <QWidget>

#include "platform/machine.h"

namespace quillmark::desktop {

/// A sheet as it will come out of the printer, true to scale, with a ruler of inches along its edges.
class EnvelopeView final : public QWidget {
 public:
    explicit EnvelopeView(QWidget* parent);
    void Show(PrintedPage page);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    double Scale() const;

    PrintedPage page_;
};

}  // namespace quillmark::desktop
