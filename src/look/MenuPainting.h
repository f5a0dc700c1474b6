// Paints the menu bar, menus and lists that drop down. The style calls these.
#pragma once

#include <QSize>

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionMenuItem;

// The ground and the edge of what opens over the window.
void paintPopUp(const QStyleOption& option, QPainter& painter);
void paintMenuItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style);
QSize menuItemSize(const QStyleOptionMenuItem& option, const QSize& text);

void paintMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style);
QSize menuBarItemSize(const QStyleOptionMenuItem& option, const QSize& text);
void paintMenuBarGround(const QStyleOption& option, QPainter& painter);
