#include "support/Hands.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QUrl>
#include <QWindow>

#include <gtest/gtest.h>

void Hands::press(QWidget* widget)
{
    ASSERT_NE(widget, nullptr);
    QTest::mouseClick(widget, Qt::LeftButton);
}

void Hands::tick(QCheckBox* box)
{
    ASSERT_NE(box, nullptr);
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect indicator = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
    QTest::mouseClick(box, Qt::LeftButton, {}, indicator.center());
}

void Hands::pressKeys(QWidget* field, const QString& text)
{
    for (const QChar character : text) {
        if (character == u'\n') {
            QTest::keyClick(field, Qt::Key_Return);
        } else if (character.unicode() < 0x80) {
            QTest::keyClick(field, character.toLatin1());
        } else {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(field, &press);
        }
    }
}

void Hands::type(QWidget* field, const QString& text)
{
    ASSERT_NE(field, nullptr);
    field->setFocus();
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    pressKeys(field, text);
}

bool Hands::drop(QWidget* widget, const QStringList& files)
{
    QMimeData dragged;
    QList<QUrl> urls;
    for (const QString& file : files) {
        urls << QUrl::fromLocalFile(file);
    }
    dragged.setUrls(urls);
    // The window looks for the widget below the mouse by itself.
    QWindow* target = widget->window()->windowHandle();
    const QPoint place = widget->mapTo(widget->window(), widget->rect().center());
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    const Qt::KeyboardModifiers keys = Qt::ShiftModifier; // with it a desktop proposes to move the files
    QDragEnterEvent enter(place, offered, &dragged, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(target, &enter);
    QDragMoveEvent move(place, offered, &dragged, Qt::LeftButton, keys);
    if (enter.isAccepted()) { // a move goes on with what the last event agreed on
        move.setDropAction(enter.dropAction());
        move.accept();
    }
    QCoreApplication::sendEvent(target, &move);
    if (!move.isAccepted()) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(target, &leave);
        return false;
    }
    QDropEvent drop(place, offered, &dragged, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(target, &drop);
    const bool isTaken = drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return isTaken;
}
