#include "EveryScreen.h"

#include "editors/Panel.h"
#include "shell/ShortcartButton.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>
#include <QTimer>

using namespace Qt::StringLiterals;

void EveryScreen::SetUp()
{
    useSampleShop();
    start();
    window->resize(1100, 750);
    QCoreApplication::processEvents();
}

void EveryScreen::inEachPanelOfTheCatalogue(const std::function<void()>& look)
{
    const std::pair<QString, const char*> nodes[] = {
        {u"ID_SHOP"_s, "ShopToolbar"}, {u"ID2"_s, "CategoryToolbar"}, {u"ID20"_s, "ProductToolbar"}};
    for (const auto& [node, toolbar] : nodes) {
        clickNode(node);
        for (const ShortcartButton* button : find(toolbar)->findChildren<ShortcartButton*>()) {
            if (button->Code == PanelCode::Show) {
                SCOPED_TRACE(button->objectName().toStdString());
                click(button->objectName().toLatin1().constData());
                QCoreApplication::processEvents();
                look();
            }
        }
    }
}

void EveryScreen::inEachTabOfTheDesign(const std::function<void()>& look)
{
    click("ShopDesignSBtn");
    for (const ShortcartButton* button : find("ShopDesignMenuFrame")->findChildren<ShortcartButton*>()) {
        SCOPED_TRACE(button->objectName().toStdString());
        click(button->objectName().toLatin1().constData());
        auto* tabs = window->VisibleFrame->findChild<QTabWidget*>();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            look();
        }
    }
}

void EveryScreen::inEachDialog(const std::function<void(QDialog& dialog)>& look)
{
    const auto pressInPanel = [this](const char* name) {
        auto* button = window->VisibleFrame->findChild<QAbstractButton*>(QLatin1String(name));
        ASSERT_NE(button, nullptr) << name;
        button->click();
    };
    inDialog(
        "frmUpload", [this] { trigger("mnuUpload"); }, look);
    clickNode(u"ID2"_s);
    inDialog(
        "frmSelectImage", [&] { pressInPanel("BrowseBtnLbl"); }, look);
    click("ShopDesignSBtn");
    click("HeaderDesignSBtn");
    inDialog(
        "CSSManagementForm", [&] { pressInPanel("btnCSS_general_header"); }, look);
    inDialog(
        "frmSelectImageOrText", [&] { pressInPanel("lblLogo"); }, look);
    inDialog(
        "frmSelectedCustomPages", [&] { pressInPanel("lblSelectedCustomPageBttn"); }, look);
}

void EveryScreen::inDialog(const char* name, const std::function<void()>& open,
                           const std::function<void(QDialog& dialog)>& look)
{
    SCOPED_TRACE(name);
    bool isSeen = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), QLatin1String(name));
        dialog->activateWindow();
        QCoreApplication::processEvents();
        look(*dialog);
        isSeen = true;
        dialog->reject();
    });
    open();
    QCoreApplication::processEvents();
    EXPECT_TRUE(isSeen);
}
