// The style's sizes and places.
#include "look/BarPainting.h"
#include "look/Measures.h"
#include "look/MenuPainting.h"
#include "look/SectionPainting.h"
#include "look/ShopStyle.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QListView>
#include <QStyleOption>
#include <QTableView>
#include <QTreeView>

namespace {

constexpr int besideButtonText = 16; // pixels on either side
constexpr int besideFieldText = 6;   // the field itself leaves two more
constexpr int comboArrow = 28;
constexpr int behindWords = 6; // room for the ring around the words of a check box
constexpr int treeIndentation = 24;

bool isOfCalendar(const QWidget* view)
{
    return qobject_cast<const QCalendarWidget*>(view->parentWidget()) != nullptr;
}

// What stands on either side of a text in a cell, less one.
int cellMargin(const QWidget* widget)
{
    if (qobject_cast<const QTableView*>(widget)) {
        return isOfCalendar(widget) ? 0 : Measure::Wide - 1;
    }
    if (qobject_cast<const QTreeView*>(widget)) {
        return 2; // twice three between picture and text
    }
    return 5;
}

QSize highEnough(QSize size, int height)
{
    return size.expandedTo(QSize(0, height));
}

} // namespace

QSize ShopStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    const int control = option ? controlHeight(option->fontMetrics) : 0;
    switch (type) {
    case CT_PushButton:
        return highEnough(contents + QSize(2 * besideButtonText, 8), control);
    case CT_LineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth == 0) {
            return contents;
        }
        return highEnough(contents + QSize(2 * besideFieldText, 0), control);
    case CT_ComboBox:
        return highEnough(contents + QSize(Measure::Gap + comboArrow, 0), control);
    case CT_SpinBox:
        return highEnough(QProxyStyle::sizeFromContents(type, option, contents, widget), control);
    case CT_CheckBox:
    case CT_RadioButton:
        return highEnough(contents + QSize(Measure::Box + Measure::Gap + behindWords, 0), control);
    case CT_GroupBox:
        if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
            return groupBoxSize(*box, contents);
        }
        break;
    case CT_TabBarTab:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
            return tabSize(*tab);
        }
        break;
    case CT_ItemViewItem: {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return highEnough(size, option ? rowHeight(option->fontMetrics) : 0);
    }
    case CT_HeaderSection: {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return highEnough(size, option ? gridHeaderHeight(option->fontMetrics) : 0);
    }
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            return menuItemSize(*item, contents);
        }
        break;
    case CT_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            return menuBarItemSize(*item, contents);
        }
        break;
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

QRect ShopStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    switch (element) {
    case SE_LineEditContents:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0) {
            return option->rect.adjusted(besideFieldText, frame->lineWidth, -besideFieldText, -frame->lineWidth);
        }
        break;
    case SE_CheckBoxFocusRect:
    case SE_RadioButtonFocusRect: {
        const bool isBox = element == SE_CheckBoxFocusRect;
        const QRect words =
            QProxyStyle::subElementRect(isBox ? SE_CheckBoxContents : SE_RadioButtonContents, option, widget);
        return visualRect(
                   option->direction, option->rect,
                   QRect(QPoint(Measure::Box + 2, option->rect.top()), QPoint(words.right(), option->rect.bottom())))
            .adjusted(0, 2, 0, -2);
    }
    case SE_ProgressBarGroove:
    case SE_ProgressBarContents:
        return option->rect;
    default:
        break;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect ShopStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    switch (control) {
    case CC_ComboBox: {
        const QRect& place = option->rect;
        const QRect arrow(place.right() + 1 - comboArrow, place.top(), comboArrow, place.height());
        if (part == SC_ComboBoxArrow) {
            return visualRect(option->direction, place, arrow);
        }
        if (part == SC_ComboBoxEditField) {
            return visualRect(option->direction, place,
                              QRect(QPoint(place.left() + Measure::Gap, place.top() + 2),
                                    QPoint(arrow.left() - 1, place.bottom() - 2)));
        }
        break;
    }
    case CC_GroupBox:
        if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
            return groupBoxPart(*box, part);
        }
        break;
    case CC_ScrollBar:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
            return scrollBarPart(*bar, part);
        }
        break;
    default:
        break;
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int ShopStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        return Measure::FieldFrame;
    case PM_ScrollBarExtent:
        return Measure::Scroll;
    case PM_ScrollBarSliderMin:
        return Measure::LeastThumb;
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ScrollView_ScrollBarOverlap:
        return 0;
    case PM_SplitterWidth:
        return Measure::Splitter;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return Measure::Box;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Measure::Gap;
    case PM_FocusFrameHMargin:
        return cellMargin(widget);
    case PM_TreeViewIndentation:
        return treeIndentation;
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabOverlap:
    case PM_TabBarBaseOverlap:
        return 0;
    case PM_MenuPanelWidth:
        return Measure::FieldFrame; // a hairline alone is half covered by the entries at 150 %
    case PM_MenuVMargin:
        return Measure::Tight;
    case PM_MenuHMargin:
    case PM_MenuBarPanelWidth:
    case PM_MenuBarVMargin:
    case PM_MenuBarItemSpacing:
        return 0;
    case PM_MenuBarHMargin:
        return Measure::Tight;
    case PM_ButtonDefaultIndicator:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_ComboBoxFrameWidth:
        return Measure::FieldFrame;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return Measure::Gap;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ShopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const
{
    switch (hint) {
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    case SH_ScrollView_FrameOnlyAroundContents:
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_TabBar_Alignment:
        return Qt::AlignLeft;
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}
