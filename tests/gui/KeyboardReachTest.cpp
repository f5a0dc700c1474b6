// Everything that a hand can press or fill is reached by Tab, and shows that it has the focus.
#include "EveryScreen.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class KeyboardReach : public EveryScreen
{
protected:
    // What acts when it is pressed, or takes a text or a choice.
    static bool isControl(const QWidget* widget)
    {
        const bool isPartOfQts = widget->objectName().startsWith(u"qt_") ||
                                 qobject_cast<const QTableView*>(widget->parentWidget()) ||
                                 qobject_cast<const QTabBar*>(widget->parentWidget());
        return !isPartOfQts && !qobject_cast<const QHeaderView*>(widget) &&
               (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
                qobject_cast<const QPlainTextEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
                qobject_cast<const QAbstractItemView*>(widget) || qobject_cast<const QTabBar*>(widget) ||
                qobject_cast<const ShortcartButton*>(widget));
    }
    // The menus have the same commands as these.
    static bool isMainButton(const QWidget* widget)
    {
        return widget->parentWidget()->objectName() == u"ToolbarFrame"_s;
    }
    static std::string nameOf(const QWidget* widget)
    {
        return std::string(widget->metaObject()->className()) + ' ' + widget->objectName().toStdString() + ' ' +
               widget->accessibleName().toStdString();
    }

    // All that Tab leads to in a window, from where the focus is until it is there again. Each one's picture with the
    // focus differs from the one without.
    static QSet<QWidget*> walkByTab(const QWidget& window)
    {
        QSet<QWidget*> reached;
        for (int step = 0; step < 300; ++step) {
            QWidget* here = window.focusWidget();
            if (!here || reached.contains(here)) {
                break;
            }
            reached.insert(here);
            const QImage focused = here->grab().toImage();
            QTest::keyClick(here, Qt::Key_Tab);
            if (window.focusWidget() == here) { // a template takes the Tab itself, and its search leads on
                QTest::keyClick(here, Qt::Key_F, Qt::ControlModifier);
            }
            EXPECT_NE(window.focusWidget(), here) << nameOf(here) << " lets nobody out";
            EXPECT_TRUE(here->grab().toImage() != focused) << nameOf(here) << " does not show the focus";
        }
        return reached;
    }
    void expectAllReached(const QWidget& within)
    {
        const QSet<QWidget*> reached = walkByTab(within);
        for (QWidget* widget : within.findChildren<QWidget*>()) {
            if (!isControl(widget) || !widget->isVisible() || !widget->isEnabled() || isMainButton(widget) ||
                widget->window() != &within) {
                continue;
            }
            bool isReached = reached.contains(widget);
            if (const auto* option = qobject_cast<QRadioButton*>(widget)) { // the arrows lead on within a group
                for (const QRadioButton* other : option->parentWidget()->findChildren<QRadioButton*>()) {
                    isReached = isReached || reached.contains(const_cast<QRadioButton*>(other));
                }
            }
            EXPECT_TRUE(isReached) << nameOf(widget) << " is out of reach";
            ++controls;
        }
    }

    int controls = 0;
};

TEST_F(KeyboardReach, IsEverythingInTheCatalogue)
{
    inEachPanelOfTheCatalogue([this] {
        window->parts().CategoriesAndProductsTree->setFocus(Qt::TabFocusReason);
        expectAllReached(*window);
    });
    EXPECT_GT(controls, 100);
}

TEST_F(KeyboardReach, IsEverythingInTheDesign)
{
    inEachTabOfTheDesign([this] {
        find("MainPageDesignSBtn")->setFocus(Qt::TabFocusReason);
        expectAllReached(*window);
    });
    EXPECT_GT(controls, 400);
}

TEST_F(KeyboardReach, IsEverythingInTheDialogs)
{
    inEachDialog([this](const QDialog& dialog) { expectAllReached(dialog); });
    EXPECT_GT(controls, 20);
}

TEST_F(KeyboardReach, IsTheLineThatFinds)
{
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    expectAllReached(*window);
}

TEST_F(KeyboardReach, AreTheWidthsOfThePreview)
{
    click("PreviewBrowserSBtn");
    auto* button = find("FullWidthBtn");
    const QImage before = button->grab().toImage();
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), button);
    EXPECT_TRUE(button->grab().toImage() != before);
}

} // namespace
