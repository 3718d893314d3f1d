#pragma once

#include <QTextBrowser>

#include "production/run/preview.h"

namespace quillmark::desktop {

/// A document's text where there are no pages: values can be clicked, open ones stand out.
class TextView final : public QTextBrowser {
    Q_OBJECT

 public:
    explicit TextView(QWidget* parent);

    /// The scroll position stays.
    void Show(const Preview& made, int lit);

 Q_SIGNALS:
    void ValueClicked(int n);
};

}  // namespace quillmark::desktop
