#include "support/Hands.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

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
