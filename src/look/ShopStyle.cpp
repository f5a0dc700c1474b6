#include "look/ShopStyle.h"

#include "look/BarPainting.h"
#include "look/ButtonPainting.h"
#include "look/FieldPainting.h"
#include "look/Measures.h"
#include "look/MenuPainting.h"
#include "look/Paint.h"
#include "look/SectionPainting.h"
#include "look/StandardIcons.h"
#include "look/Tones.h"
#include "look/Type.h"
#include "look/ViewPainting.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>

namespace {

// The option as what it is, or nothing.
template <class Option>
const Option* as(const QStyleOption* option)
{
    return qstyleoption_cast<const Option*>(option);
}

void paintHeaderLabel(const QStyleOptionHeader& option, QPainter& painter, const QStyle& style)
{
    painter.save();
    painter.setFont(boldFont());
    const bool isOn = option.state.testFlag(QStyle::State_Enabled);
    painter.setPen(tone(isOn ? Tone::Text : Tone::Off));
    Qt::Alignment alignment = option.textAlignment;
    if (!(alignment & Qt::AlignVertical_Mask)) { // the toolkit's choice of a file names none
        alignment |= Qt::AlignVCenter;
    }
    const bool isCentred = alignment.testFlag(Qt::AlignHCenter);
    const QRect words = option.rect.adjusted(isCentred ? 0 : Measure::Wide, 0, isCentred ? 0 : -Measure::Tight, 0);
    style.drawItemText(&painter, words, static_cast<int>(alignment), option.palette, isOn, option.text);
    painter.restore();
}

} // namespace

ShopStyle::ShopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QStyle* newShopStyle()
{
    return new ShopStyle;
}

void ShopStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QTabBar*>(widget)) {
        widget->setAttribute(Qt::WA_Hover);
    } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        view->viewport()->setAttribute(Qt::WA_Hover);
    } else if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
        area->setAttribute(Qt::WA_Hover);
    } else if (qobject_cast<QScrollBar*>(widget)) {
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false); // the ground below it shows beside the thumb
    }
    if (auto* header = qobject_cast<QHeaderView*>(widget)) {
        QFont font = header->font();
        font.setBold(true); // what measures the titles measures them as they are painted
        header->setFont(font);
    }
}

void ShopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case PE_PanelLineEdit:
        if (const auto* frame = as<QStyleOptionFrame>(option); frame && frame->lineWidth > 0) {
            paintField(*option, *painter, widget);
        } else {
            painter->fillRect(option->rect, option->palette.base());
        }
        return;
    case PE_FrameLineEdit:
        return; // with the panel
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea*>(widget)) {
            paintField(*option, *painter, widget);
        } else {
            drawRing(*painter, option->rect, Measure::Radius, Measure::Hairline, tone(Tone::Line));
        }
        return;
    case PE_FrameWindow:
    case PE_FrameMenu:
        drawRing(*painter, option->rect, 0, Measure::Hairline, tone(Tone::Edge));
        return;
    case PE_PanelMenu:
        paintPopUp(*option, *painter);
        return;
    case PE_PanelButtonCommand:
        if (const auto* button = as<QStyleOptionButton>(option)) {
            paintButton(*button, *painter);
            return;
        }
        break;
    case PE_FrameDefaultButton:
        return; // with the button's panel
    case PE_PanelButtonTool:
    case PE_PanelButtonBevel:
        paintToolButton(*option, *painter);
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        paintCheckBox(*option, *painter);
        return;
    case PE_IndicatorRadioButton:
        paintOption(*option, *painter);
        return;
    case PE_FrameFocusRect:
        paintFocus(*option, *painter, widget);
        return;
    case PE_PanelItemViewRow:
        if (const auto* row = as<QStyleOptionViewItem>(option)) {
            paintRow(*row, *painter);
            return;
        }
        break;
    case PE_PanelItemViewItem:
        if (const auto* cell = as<QStyleOptionViewItem>(option)) {
            paintCell(*cell, *painter, widget);
            return;
        }
        break;
    case PE_IndicatorBranch:
        paintBranch(*option, *painter);
        return;
    case PE_IndicatorArrowUp:
        drawChevron(*painter, option->rect, Qt::UpArrow, option->palette.color(QPalette::ButtonText));
        return;
    case PE_IndicatorArrowDown:
        drawChevron(*painter, option->rect, Qt::DownArrow, option->palette.color(QPalette::ButtonText));
        return;
    case PE_IndicatorArrowLeft:
        drawChevron(*painter, option->rect, Qt::LeftArrow, option->palette.color(QPalette::ButtonText));
        return;
    case PE_IndicatorArrowRight:
        drawChevron(*painter, option->rect, Qt::RightArrow, option->palette.color(QPalette::ButtonText));
        return;
    case PE_FrameTabBarBase:
        paintTabLine(*option, *painter);
        return;
    case PE_FrameTabWidget:
    case PE_PanelScrollAreaCorner:
        return; // the ground shows
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ShopStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    switch (element) {
    case CE_PushButton: // the ring of the focus is part of the bevel
        proxy()->drawControl(CE_PushButtonBevel, option, painter, widget);
        proxy()->drawControl(CE_PushButtonLabel, option, painter, widget);
        return;
    case CE_PushButtonLabel:
        if (const auto* button = as<QStyleOptionButton>(option)) {
            paintButtonLabel(*button, *painter, *this);
            return;
        }
        break;
    case CE_ItemViewItem:
        if (const auto* cell = as<QStyleOptionViewItem>(option)) {
            QStyleOptionViewItem coloured = *cell;
            coloured.palette = cellPalette(cell->palette);
            QProxyStyle::drawControl(element, &coloured, painter, widget);
            return;
        }
        break;
    case CE_Header:
        if (const auto* header = as<QStyleOptionHeader>(option)) {
            paintHeaderGround(header->rect, header->orientation, *painter);
            paintHeaderLabel(*header, *painter, *this);
            return;
        }
        break;
    case CE_HeaderEmptyArea:
        paintHeaderGround(option->rect, option->state.testFlag(State_Horizontal) ? Qt::Horizontal : Qt::Vertical,
                          *painter);
        return;
    case CE_TabBarTabShape:
        if (const auto* tab = as<QStyleOptionTab>(option)) {
            paintTab(*tab, *painter);
            return;
        }
        break;
    case CE_TabBarTabLabel:
        if (const auto* tab = as<QStyleOptionTab>(option)) {
            paintTabLabel(*tab, *painter, *this);
            return;
        }
        break;
    case CE_Splitter:
        paintSplitter(*option, *painter);
        return;
    case CE_RubberBand:
        fillSharp(*painter, option->rect, tone(Tone::Accent));
        return;
    case CE_ProgressBar:
        if (const auto* bar = as<QStyleOptionProgressBar>(option)) {
            paintProgress(*bar, *painter);
            return;
        }
        break;
    case CE_MenuBarItem:
        if (const auto* item = as<QStyleOptionMenuItem>(option)) {
            paintMenuBarItem(*item, *painter, *this);
            return;
        }
        break;
    case CE_MenuBarEmptyArea:
        paintMenuBarGround(*option, *painter);
        return;
    case CE_MenuItem:
        if (const auto* item = as<QStyleOptionMenuItem>(option)) {
            paintMenuItem(*item, *painter, *this);
            return;
        }
        break;
    case CE_MenuEmptyArea:
        fillSharp(*painter, option->rect, tone(Tone::Field));
        return;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QIcon ShopStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    QIcon icon = standardIconOf(picture);
    return icon.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : icon;
}

QPixmap ShopStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    // A picture is not dimmed because its row is chosen.
    return mode == QIcon::Selected ? pixmap : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

void ShopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    switch (control) {
    case CC_ComboBox:
        if (const auto* list = as<QStyleOptionComboBox>(option)) {
            paintComboBox(*list, *painter, widget, *this);
            return;
        }
        break;
    case CC_SpinBox:
        if (const auto* box = as<QStyleOptionSpinBox>(option)) {
            paintSpinBox(*box, *painter, widget, *this);
            return;
        }
        break;
    case CC_GroupBox:
        if (const auto* box = as<QStyleOptionGroupBox>(option)) {
            paintGroupBox(*box, *painter);
            return;
        }
        break;
    case CC_ToolButton:
        if (const auto* button = as<QStyleOptionToolButton>(option)) {
            QStyleOptionToolButton plain = *button;
            plain.features &= ~QStyleOptionToolButton::HasMenu; // no angle over the end of its words
            QProxyStyle::drawComplexControl(control, &plain, painter, widget);
            return;
        }
        break;
    case CC_ScrollBar:
        if (const auto* bar = as<QStyleOptionSlider>(option)) {
            paintScrollBar(*bar, *painter, *this, widget);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}
