#pragma once

#include <QLabel>

#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// `picInfo`: what can be done next, or what the field under the editor means.
class GuidanceBar final : public QLabel {
    Q_OBJECT

 public:
    GuidanceBar(Desk& desk, const Appearance& appearance, QWidget* parent);

    void Show();
    /// Why the last command was not taken, until the next one.
    void ShowRefusal(const QString& reason);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void Say(const QString& plain, const QString& shown, bool rich);
    QString Coloured() const;
    QColor ColourOf(InfoColour colour) const;
    void FitTwoLines();

    Desk& desk_;
    const Appearance& appearance_;
};

}  // namespace quillmark::desktop
