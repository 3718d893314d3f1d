#include "desktop/toolkit/quill_style.h"

#include <QAbstractItemView>
#include <QFrame>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "desktop/toolkit/strokes.h"

namespace quillmark::desktop {

namespace {

constexpr char kPrimary[] = "primary";
constexpr int kScrollBar = 12;
constexpr QColor kWarning(0x9A, 0x5B, 0x00);
constexpr QColor kStop(0xB3, 0x26, 0x1E);
constexpr int kShortestHandle = 28;  ///< of a scroll bar

bool Is(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state & flag;
}

bool IsPrimary(const QStyleOption& option, const QWidget* widget) {
    if (!Is(option, QStyle::State_Enabled)) return false;
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault = button && (button->features & QStyleOptionButton::DefaultButton);
    return isDefault || (widget && widget->property(kPrimary).toBool());
}

/// The handle of a scroll bar, which takes the whole length: there are no buttons at its ends.
QRect HandleOf(const QStyleOptionSlider& bar) {
    const bool upright = bar.orientation == Qt::Vertical;
    const int length = upright ? bar.rect.height() : bar.rect.width();
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    int handle = length;
    if (range > 0) {
        const qint64 share = qint64{bar.pageStep} * length / (range + bar.pageStep);
        handle = std::clamp(static_cast<int>(share), std::min(kShortestHandle, length), length);
    }
    const int at = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                   length - handle, bar.upsideDown);
    return upright ? QRect(bar.rect.x(), bar.rect.y() + at, bar.rect.width(), handle)
                   : QRect(bar.rect.x() + at, bar.rect.y(), handle, bar.rect.height());
}

}  // namespace

QuillStyle::QuillStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int QuillStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_EtchDisabledText:
        case SH_Widget_Animation_Duration:
            return 0;
        case SH_ToolTip_WakeUpDelay:
            return 500;
        case SH_ScrollBar_LeftClickAbsolutePosition:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int QuillStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_ScrollBarExtent:
            return kScrollBar;
        case PM_DefaultFrameWidth:
            return 2;
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        case PM_ToolTipLabelFrameWidth:
            return 5;
        case PM_MenuVMargin:
            return 4;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QRect QuillStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar) return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect handle = HandleOf(*bar);
    const bool upright = bar->orientation == Qt::Vertical;
    QRect rect = bar->rect;
    switch (part) {
        case SC_ScrollBarGroove:
            return rect;
        case SC_ScrollBarSlider:
            return handle;
        case SC_ScrollBarSubPage:
            upright ? rect.setBottom(handle.top() - 1) : rect.setRight(handle.left() - 1);
            return rect;
        case SC_ScrollBarAddPage:
            upright ? rect.setTop(handle.bottom() + 1) : rect.setLeft(handle.right() + 1);
            return rect;
        default:
            return {};
    }
}

QSize QuillStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton || type == CT_LineEdit || type == CT_ComboBox) size.rheight() += 2;
    if (type == CT_MenuItem) size.rheight() += 2;
    if (type == CT_ItemViewItem) size.rheight() += 3;
    return size;
}

QIcon QuillStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    const QPalette palette = option ? option->palette : widget ? widget->palette() : QPalette();
    switch (icon) {
        case SP_ArrowLeft:
        case SP_ArrowRight:
            if (!widget || !widget->inherits("QCalendarWidget")) break;
            return ChevronIcon(icon == SP_ArrowLeft ? PE_IndicatorArrowLeft : PE_IndicatorArrowRight,
                               palette.color(QPalette::HighlightedText));
        case SP_CommandLink:
            return ChevronIcon(PE_IndicatorArrowRight, palette.color(QPalette::Link));
        case SP_MessageBoxQuestion:
            return SignIcon(QLatin1Char('?'), palette.color(QPalette::Highlight));
        case SP_MessageBoxInformation:
            return SignIcon(QLatin1Char('i'), palette.color(QPalette::Highlight));
        case SP_MessageBoxWarning:
            return SignIcon(QLatin1Char('!'), kWarning);
        case SP_MessageBoxCritical:
            return SignIcon(QLatin1Char('!'), kStop);
        default:
            break;
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

void QuillStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    // What the pointer is on answers.
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) view->viewport()->setAttribute(Qt::WA_Hover);
}

void QuillStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand:
            return DrawButton(*painter, *option, IsPrimary(*option, widget));
        case PE_PanelButtonTool:
            return DrawToolButton(*painter, *option);
        case PE_FrameDefaultButton:
            return;
        case PE_FrameFocusRect:
            if (!widget || !widget->inherits("QPushButton")) DrawRing(*painter, *option);
            return;
        case PE_FrameLineEdit:
            return DrawField(*painter, *option, Qt::NoBrush);
        case PE_PanelLineEdit:
            if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
                frame && frame->lineWidth > 0)
                return DrawField(*painter, *option, option->palette.brush(QPalette::Base));
            break;
        case PE_Frame:
        case PE_FrameGroupBox:
            return DrawPane(*painter, *option, widget);
        case PE_FrameMenu:
        case PE_PanelTipLabel:
            return DrawPopUp(*painter, *option, element == PE_PanelTipLabel);
        case PE_IndicatorRadioButton:
            return DrawRadio(*painter, *option);
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            return DrawCheckBox(*painter, *option);
        case PE_IndicatorArrowDown:
        case PE_IndicatorArrowUp:
        case PE_IndicatorArrowLeft:
        case PE_IndicatorArrowRight:
            return DrawChevron(*painter, *option, element);
        case PE_PanelItemViewItem:
            DrawItemGround(*painter, *option);
            break;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void QuillStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    switch (element) {
        case CE_PushButtonLabel:
            if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
                button && IsPrimary(*option, widget)) {
                QStyleOptionButton primary = *button;
                primary.palette.setColor(QPalette::ButtonText,
                                         option->palette.color(QPalette::HighlightedText));
                return QProxyStyle::drawControl(element, &primary, painter, widget);
            }
            break;
        case CE_ShapedFrame:
            if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
                frame && (frame->frameShape == QFrame::StyledPanel || frame->frameShape == QFrame::Box ||
                          frame->frameShape == QFrame::Panel))
                return DrawPane(*painter, *option, widget);
            break;
        case CE_PushButtonBevel:
            QProxyStyle::drawControl(element, option, painter, widget);
            // A flat button has no edge of its own that would show the keyboard.
            if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
                button && (button->features & QStyleOptionButton::Flat) && Is(*option, State_HasFocus))
                DrawRing(*painter, *option);
            return;
        case CE_HeaderSection:
            return DrawHeaderSection(*painter, *option);
        case CE_HeaderEmptyArea:
            painter->fillRect(option->rect, option->palette.window());
            return;
        case CE_ProgressBarGroove:
            return DrawProgress(*painter, *option, 1, QPalette::Mid);
        case CE_ProgressBarContents:
            if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
                bar && bar->maximum > bar->minimum)
                return DrawProgress(*painter, *option,
                                    double(bar->progress - bar->minimum) / (bar->maximum - bar->minimum),
                                    QPalette::Highlight);
            break;
        case CE_Splitter:
            return DrawSplitter(*painter, *option);
        default:
            break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void QuillStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        if (control == CC_ScrollBar) return DrawScrollBar(*painter, *slider, HandleOf(*slider));
        if (control == CC_Slider)
            return DrawSlider(*painter, *slider,
                              proxy()->subControlRect(CC_Slider, slider, SC_SliderHandle, widget));
    }
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ComboBox && combo)
        return DrawComboBox(*painter, *combo,
                            proxy()->subControlRect(CC_ComboBox, combo, SC_ComboBoxArrow, widget));
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void MakePrimary(QWidget* button) {
    button->setProperty(kPrimary, true);
}

}  // namespace quillmark::desktop
