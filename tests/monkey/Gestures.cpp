#include "Gestures.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTyped = 40; // characters

bool canTake(const QPointer<QWidget>& widget)
{
    return widget && widget->isVisible() && widget->isEnabled();
}

// As an event that comes from the desktop.
void send(QWidget& widget, QEvent& event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event);
}

} // namespace

QString nameOf(const QWidget& widget)
{
    QString name = QString::fromLatin1(widget.metaObject()->className());
    int named = 0;
    for (const QWidget* at = &widget; at && named < 3; at = at->parentWidget()) {
        if (!at->objectName().isEmpty()) {
            name += u' ' + at->objectName();
            ++named;
        }
    }
    return name;
}

void pressAt(QWidget& widget, const QPoint& place, Qt::MouseButton button)
{
    const QPointer<QWidget> kept(&widget);
    QTest::mousePress(&widget, button, {}, place);
    if (canTake(kept)) {
        QTest::mouseRelease(&widget, button, {}, place);
    }
}

void pressTwice(QWidget& widget, const QPoint& place, Qt::MouseButton button)
{
    const QPointer<QWidget> kept(&widget);
    pressAt(widget, place, button);
    if (canTake(kept)) {
        QMouseEvent second(QEvent::MouseButtonDblClick, place, widget.mapToGlobal(place), button, button, {});
        send(widget, second);
    }
    if (canTake(kept)) {
        QTest::mouseRelease(&widget, button, {}, place);
    }
}

void drag(QWidget& widget, const QPoint& from, const QPoint& to, Qt::MouseButton button)
{
    const QPointer<QWidget> kept(&widget);
    QTest::mousePress(&widget, button, {}, from);
    for (const QPoint& place : {(from + to) / 2, to}) {
        if (canTake(kept)) {
            QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, button, {});
            send(widget, move);
        }
    }
    if (canTake(kept)) {
        QTest::mouseRelease(&widget, button, {}, to);
    }
}

void pressAndReleaseElsewhere(QWidget& widget, const QPoint& from, const QPoint& to, Qt::MouseButton button)
{
    const QPointer<QWidget> kept(&widget);
    QTest::mousePress(&widget, button, {}, from);
    if (canTake(kept)) {
        QTest::mouseRelease(&widget, button, {}, to);
    }
}

void turnWheel(QWidget& widget, const QPoint& place, int steps)
{
    QWheelEvent event(place, widget.mapToGlobal(place), {}, QPoint(0, steps * 120), Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    send(widget, event);
}

void askForContextMenu(QWidget& widget, const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    send(widget, event);
}

void pressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    const QPointer<QWidget> kept(&widget);
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    send(widget, press);
    if (canTake(kept)) {
        QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
        send(widget, release);
    }
}

void typeText(QWidget& widget, const QString& text)
{
    const QPointer<QWidget> kept(&widget);
    if (text.size() > longestTyped) {
        QGuiApplication::clipboard()->setText(text);
        pressKey(widget, Qt::Key_V, Qt::ControlModifier, u"\x16"_s);
        return;
    }
    for (qsizetype at = 0; at < text.size() && canTake(kept); ++at) {
        const int length = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
        pressKey(widget, 0, {}, text.mid(at, length));
        at += length - 1;
    }
}

void pressClose(QWidget& window)
{
    const QPointer<QWidget> kept(&window);
    QCloseEvent event;
    send(window, event);
    if (kept && event.isAccepted()) {
        window.hide();
    }
}
