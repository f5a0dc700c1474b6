#include "support/KeyHands.h"

#include "support/Hands.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int mostKeys = 300;

// A text that takes Tab itself gives the focus to its search by Ctrl+F.
void goOn(QWidget* window)
{
    QWidget* here = window->focusWidget() ? window->focusWidget() : window;
    QTest::keyClick(here, Qt::Key_Tab);
    if (window->focusWidget() == here) {
        QTest::keyClick(here, Qt::Key_F, Qt::ControlModifier);
    }
}

bool isOneGroup(const QWidget* left, const QWidget* right)
{
    return qobject_cast<const QRadioButton*>(left) && qobject_cast<const QRadioButton*>(right) &&
           left->parentWidget() == right->parentWidget();
}

} // namespace

void KeyHands::tabTo(QWidget* widget)
{
    ASSERT_NE(widget, nullptr);
    QWidget* window = widget->window();
    for (int key = 0; key < mostKeys && window->focusWidget() != widget; ++key) {
        if (isOneGroup(window->focusWidget(), widget)) {
            QTest::keyClick(window->focusWidget(), Qt::Key_Down);
        } else {
            goOn(window);
        }
    }
    ASSERT_EQ(window->focusWidget(), widget) << "no key leads to " << widget->objectName().toStdString() << " from "
                                             << window->focusWidget()->objectName().toStdString();
}

void KeyHands::press(QWidget* widget)
{
    tabTo(widget);
    const auto* option = qobject_cast<QRadioButton*>(widget);
    if (!option || !option->isChecked()) { // the arrow that led to an option has chosen it
        QTest::keyClick(widget, Qt::Key_Space);
    }
}

void KeyHands::type(QWidget* field, const QString& text)
{
    tabTo(field);
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    Hands::pressKeys(field, text);
}

void KeyHands::takeEntry(QMainWindow& window, QAction* entry)
{
    QMenu* menu = nullptr;
    for (QMenu* each : window.menuBar()->findChildren<QMenu*>()) {
        menu = each->actions().contains(entry) ? each : menu;
    }
    ASSERT_NE(menu, nullptr);
    QApplication::setActiveWindow(&window); // no window manager does this here when the last menu has closed
    const QString letter = menu->title().section(QLatin1Char('&'), 1).first(1);
    QTest::keyClick(&window, letter.at(0).toLatin1(), Qt::AltModifier);
    ASSERT_EQ(QApplication::activePopupWidget(), menu);
    for (int key = 0; key < mostKeys && menu->activeAction() != entry; ++key) {
        QTest::keyClick(menu, Qt::Key_Down);
    }
    ASSERT_EQ(menu->activeAction(), entry);
    QTest::keyClick(menu, Qt::Key_Return);
}

void KeyHands::openTab(QTabWidget* tabs, int index)
{
    tabTo(tabs->tabBar());
    const Qt::Key key = index < tabs->currentIndex() ? Qt::Key_Left : Qt::Key_Right;
    for (int pressed = 0; pressed < tabs->count() && tabs->currentIndex() != index; ++pressed) {
        QTest::keyClick(tabs->tabBar(), key);
    }
    ASSERT_EQ(tabs->currentIndex(), index);
}
