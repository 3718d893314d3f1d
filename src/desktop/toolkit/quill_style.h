#pragma once

#include <QProxyStyle>

namespace quillmark::desktop {

/// How controls are drawn: flat, with one thin line around what can be used and the accent where the keyboard
/// is. Colours come from the palette alone, so that light, dark and dimmed windows need nothing of their own.
class QuillStyle final : public QProxyStyle {
    Q_OBJECT

 public:
    QuillStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

/// Marks the button that the work of a window leads to: it has the accent behind its caption, as the default
/// button of a box has.
void MakePrimary(QWidget* button);

}  // namespace quillmark::desktop
