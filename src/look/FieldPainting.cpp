#include "look/FieldPainting.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QAbstractItemView>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

namespace {

struct Edge
{
    QColor colour;
    int width;
};

// The edge comes with the field's own ground: a date field is as light in the dark look.
Edge edgeOf(const QStyleOption& option, const QWidget* widget)
{
    const bool isOnLight = option.palette.color(QPalette::Base).lightness() > 128;
    const Scheme scheme = isOnLight ? Scheme::Light : Scheme::Dark;
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return {tone(Tone::EdgeOff), Measure::Hairline};
    }
    if (widget && widget->property(refusedProperty).toBool()) {
        return {toneIn(scheme, Tone::Error), Measure::Ring};
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        return {toneIn(scheme, Tone::Accent), Measure::Ring};
    }
    const bool isUnderMouse = option.state.testFlag(QStyle::State_MouseOver);
    return {toneIn(scheme, isUnderMouse ? Tone::Muted : Tone::Edge), Measure::Hairline};
}

void paintArrow(QPainter& painter, const QRect& room, Qt::ArrowType direction, bool isOn)
{
    drawChevron(painter, room, direction, tone(isOn ? Tone::Muted : Tone::Off));
}

// A field over a cell of a grid fills the cell to its corners.
bool isOverCell(const QWidget* widget)
{
    const QWidget* viewport = widget ? widget->parentWidget() : nullptr;
    return viewport && qobject_cast<const QAbstractItemView*>(viewport->parentWidget());
}

} // namespace

void paintField(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const Edge edge = edgeOf(option, widget);
    const int radius = isOverCell(widget) ? 0 : Measure::Radius;
    fillRounded(painter, option.rect, radius, option.palette.color(QPalette::Base));
    drawRing(painter, option.rect, radius, edge.width, edge.colour);
}

void paintComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget, const QStyle& style)
{
    paintField(option, painter, widget);
    const QRect arrow = style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, widget);
    paintArrow(painter, arrow, Qt::DownArrow, option.state.testFlag(QStyle::State_Enabled));
}

void paintSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget, const QStyle& style)
{
    paintField(option, painter, widget);
    for (const auto& [part, direction, step] :
         {std::tuple(QStyle::SC_SpinBoxUp, Qt::UpArrow, QAbstractSpinBox::StepUpEnabled),
          {QStyle::SC_SpinBoxDown, Qt::DownArrow, QAbstractSpinBox::StepDownEnabled}}) {
        const QRect room = style.subControlRect(QStyle::CC_SpinBox, &option, part, widget);
        paintArrow(painter, room, direction, option.stepEnabled.testFlag(step));
    }
}
