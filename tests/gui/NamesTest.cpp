// What a screen reader would say of each button and field of the real window.
#include "editors/Panel.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

class Names : public WindowTest
{
protected:
    static bool isField(const QWidget* widget)
    {
        return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
               qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
               qobject_cast<const ShortcartButton*>(widget) ||
               (qobject_cast<const QAbstractItemView*>(widget) && !qobject_cast<const QHeaderView*>(widget));
    }
    void expectNames()
    {
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            // Parts of Qt's own widgets, such as the corner of a table, belong to their widget.
            if (!isField(widget) || !widget->isVisible() || widget->objectName().startsWith(u"qt_") ||
                qobject_cast<QTableView*>(widget->parentWidget())) {
                continue;
            }
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
            EXPECT_FALSE(!spoken || spoken->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
            ++fields;
        }
    }

    int fields = 0;
};

TEST_F(Names, AreOnEveryButtonAndFieldOfEveryPanel)
{
    useSampleShop();
    start();
    const std::pair<QString, const char*> nodes[] = {
        {u"ID_SHOP"_s, "ShopToolbar"}, {u"ID2"_s, "CategoryToolbar"}, {u"ID20"_s, "ProductToolbar"}};
    for (const auto& [node, toolbar] : nodes) {
        clickNode(node);
        for (const ShortcartButton* button : find(toolbar)->findChildren<ShortcartButton*>()) {
            if (button->Code == PanelCode::Show) {
                SCOPED_TRACE(button->objectName().toStdString());
                click(button->objectName().toLatin1().constData());
                expectNames();
            }
        }
    }
    click("ShopDesignSBtn");
    for (const ShortcartButton* button : find("ShopDesignMenuFrame")->findChildren<ShortcartButton*>()) {
        SCOPED_TRACE(button->objectName().toStdString());
        click(button->objectName().toLatin1().constData());
        auto* tabs = window->VisibleFrame->findChild<QTabWidget*>();
        ASSERT_NE(tabs, nullptr);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            expectNames();
        }
    }
    EXPECT_GT(fields, 500);
}

} // namespace
