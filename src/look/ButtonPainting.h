// Paints what is pressed or ticked: buttons, tool buttons, check boxes, options. The style calls these.
#pragma once

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionButton;

// Ground and edge of a button with its state; the caption is not painted here.
void paintButton(const QStyleOptionButton& option, QPainter& painter);
// Its picture and its words.
void paintButtonLabel(const QStyleOptionButton& option, QPainter& painter, const QStyle& style);
// A button without an edge of its own: nothing behind it at rest.
void paintToolButton(const QStyleOption& option, QPainter& painter);
void paintCheckBox(const QStyleOption& option, QPainter& painter);
void paintOption(const QStyleOption& option, QPainter& painter);
