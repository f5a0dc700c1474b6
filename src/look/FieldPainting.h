// Paints what can be written in or chosen from: fields, text areas and lists, combo boxes, spin boxes. The style calls
// these.
#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSpinBox;
class QStyle;
class QWidget;

// A property of a field whose value was refused; it then has an edge that says so.
inline constexpr const char* refusedProperty = "refused";

// Ground and edge of a field, with the edge of its state.
void paintField(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void paintComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget, const QStyle& style);
void paintSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget, const QStyle& style);
