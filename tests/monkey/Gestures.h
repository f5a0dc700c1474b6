// What hands do on a window: press, drag, turn the wheel, type. A press may delete the widget, which these allow for.
#pragma once

#include <QKeySequence>
#include <QPoint>
#include <QString>
#include <QWidget>

// The class and the names from the widget up to the next named parents.
QString nameOf(const QWidget& widget);

void pressAt(QWidget& widget, const QPoint& place, Qt::MouseButton button = Qt::LeftButton);
void pressTwice(QWidget& widget, const QPoint& place, Qt::MouseButton button = Qt::LeftButton);
// Both places are the widget's; the second may lie outside.
void drag(QWidget& widget, const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton);
// Presses here and releases there, with no move on the way.
void pressAndReleaseElsewhere(QWidget& widget, const QPoint& from, const QPoint& to, Qt::MouseButton button);
void turnWheel(QWidget& widget, const QPoint& place, int steps);
void askForContextMenu(QWidget& widget, const QPoint& place);
void pressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});
// Key by key while the widget takes it; long texts by the clipboard.
void typeText(QWidget& widget, const QString& text);
// The frame's button of the desktop.
void pressClose(QWidget& window);
