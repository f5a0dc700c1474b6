// A letter with Alt leads to one thing only: no two mnemonics that are on the screen together are the same, in every
// panel with the menu bar above it, in every dialog and in every menu.
#include "editors/Panel.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QKeySequence>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class Mnemonics : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
        window->resize(1100, 750);
        QCoreApplication::processEvents();
    }

    // The texts of a widget whose letters act.
    static QStringList textsOf(const QWidget& widget)
    {
        QStringList texts;
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            texts << button->text();
        } else if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->buddy()) {
            texts << label->text();
        } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
            texts << group->title();
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                texts << tabs->tabText(tab);
            }
        } else if (qobject_cast<const QMenuBar*>(&widget) || qobject_cast<const QMenu*>(&widget)) {
            for (const QAction* action : widget.actions()) {
                texts << action->text();
            }
        }
        return texts;
    }
    void expectDifferent(const QStringList& texts)
    {
        QMap<QKeySequence, QString> taken;
        for (const QString& text : texts) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (key.isEmpty()) {
                continue;
            }
            EXPECT_FALSE(taken.contains(key)) << key.toString().toStdString() << " is \"" << text.toStdString()
                                              << "\" and \"" << taken.value(key).toStdString() << '"';
            taken.insert(key, text);
            ++letters;
        }
    }
    void expectDifferentIn(const QWidget& shown)
    {
        QCoreApplication::processEvents();
        QStringList texts;
        for (const QWidget* widget : shown.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->window() == &shown) {
                texts << textsOf(*widget);
            }
        }
        expectDifferent(texts);
    }
    // Opens a dialog, looks at it, and closes it.
    void expectDifferentInDialog(const char* name, const std::function<void()>& open)
    {
        SCOPED_TRACE(name);
        bool isSeen = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), QLatin1String(name));
            expectDifferentIn(*dialog);
            isSeen = true;
            dialog->reject();
        });
        open();
        QCoreApplication::processEvents();
        EXPECT_TRUE(isSeen);
    }

    int letters = 0; // that were seen
};

TEST_F(Mnemonics, AreDifferentInEveryPanelOfTheCatalogue)
{
    const std::pair<QString, const char*> nodes[] = {
        {u"ID_SHOP"_s, "ShopToolbar"}, {u"ID2"_s, "CategoryToolbar"}, {u"ID20"_s, "ProductToolbar"}};
    for (const auto& [node, toolbar] : nodes) {
        clickNode(node);
        for (const ShortcartButton* button : find(toolbar)->findChildren<ShortcartButton*>()) {
            if (button->Code == PanelCode::Show) {
                SCOPED_TRACE(button->objectName().toStdString());
                click(button->objectName().toLatin1().constData());
                expectDifferentIn(*window);
            }
        }
    }
    EXPECT_GE(letters, 20); // two menus with each panel
}

TEST_F(Mnemonics, AreDifferentInEveryPanelOfTheDesign)
{
    click("ShopDesignSBtn");
    for (const ShortcartButton* button : find("ShopDesignMenuFrame")->findChildren<ShortcartButton*>()) {
        SCOPED_TRACE(button->objectName().toStdString());
        click(button->objectName().toLatin1().constData());
        auto* tabs = window->VisibleFrame->findChild<QTabWidget*>();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            expectDifferentIn(*window);
        }
    }
    EXPECT_GE(letters, 60);
}

TEST_F(Mnemonics, AreDifferentInEveryDialog)
{
    const auto pressInPanel = [this](const char* name) {
        auto* button = window->VisibleFrame->findChild<QAbstractButton*>(QLatin1String(name));
        ASSERT_NE(button, nullptr) << name;
        button->click();
    };
    expectDifferentInDialog("frmUpload", [this] { trigger("mnuUpload"); });
    clickNode(u"ID2"_s);
    expectDifferentInDialog("frmSelectImage", [&] { pressInPanel("BrowseBtnLbl"); });
    click("ShopDesignSBtn");
    click("HeaderDesignSBtn");
    expectDifferentInDialog("CSSManagementForm", [&] { pressInPanel("btnCSS_general_header"); });
    expectDifferentInDialog("frmSelectImageOrText", [&] { pressInPanel("lblLogo"); });
    expectDifferentInDialog("frmSelectedCustomPages", [&] { pressInPanel("lblSelectedCustomPageBttn"); });
    EXPECT_GE(letters, 10);
}

TEST_F(Mnemonics, AreDifferentInEveryMenu)
{
    for (const char* name : {"mnuShop", "mnuTools", "mnuPopUp"}) {
        SCOPED_TRACE(name);
        expectDifferent(textsOf(*find<QMenu>(name)));
    }
    EXPECT_GE(letters, 5);
}

} // namespace
