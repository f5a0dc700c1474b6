// The fixture of the tests that design pages in the real window, with the sample shop.
#pragma once

#include "design/ShopDesignClass.h"
#include "editors/Panel.h"
#include "support/Hands.h"
#include "support/WindowTest.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

#include <pugixml.hpp>

class DesignTest : public WindowTest
{
protected:
    enum Tab { PageTab, TemplateTab };

    // The sample shop, started, and the design mode.
    void openDesign();
    // Clicks the button of a manager, which shows the tab of its page.
    void openManager(const char* button);
    void showTab(Tab tab) { in<QTabWidget>("PagesTab")->setCurrentIndex(tab); }

    // A widget of the manager that is shown.
    template <class T = QWidget>
    T* in(const char* name) const
    {
        T* widget = window->VisibleFrame->findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    bool has(const char* name) const
    {
        return window->VisibleFrame->findChild<QWidget*>(QLatin1String(name)) != nullptr;
    }

    static void press(QWidget* widget) { Hands::press(widget); }
    void pressIn(const char* name) { press(in(name)); }
    static void tick(QCheckBox* box) { Hands::tick(box); }
    static void pressKeys(QWidget* field, const QString& text) { Hands::pressKeys(field, text); }
    static void type(QWidget* field, const QString& text) { Hands::type(field, text); }

    // The one dialog of that name that is shown.
    QDialog* dialog(const char* name) const;
    static void press(QDialog* dialog, const char* button)
    {
        press(dialog->findChild<QWidget*>(QLatin1String(button)));
    }

    ShopClass& shop() const { return *window->session().shop; }
    ShopDesignClass& design() const { return *shop().ShopDesign; }

    // Saves by the menu and reads the file.
    void saveShop();
    // The text of the first element of that name in the file that was saved.
    QString saved(const QString& element) const;
    // The style of that name in that file; a failed test when there is none or more than one.
    pugi::xml_node savedStyle(const QString& name) const;

    QByteArray templateFile(const char* page) const
    {
        return fileBytes(files.path(QStringLiteral("templates/%1.html").arg(QLatin1String(page))));
    }
    QString templateText(const char* page) const;

    // The page of the preview at that address.
    QString pageAt(const QString& query);

    pugi::xml_document file;
};

// The ten managers: the button that shows each, the page's template and the option of its advanced mode.
struct ManagerCase
{
    const char* button;
    const char* page;
    DesignOption advanced;
    const char* advancedControl;
    bool savesTemplate; // with every save
};
inline constexpr ManagerCase managers[] = {
    {"MenuDesignSBtn", "menu", DesignOption::Menu_Advanced, "AdvancedCh", true},
    {"HeaderDesignSBtn", "header", DesignOption::Header_Advanced, "AdvancedCh", true},
    {"FooterDesignSBtn", "footer", DesignOption::Footer_Advanced, "AdvancedCh", true},
    {"MainPageDesignSBtn", "main", DesignOption::Main_Advanced, "AdvancedCh", false},
    {"CategoryPageDesignSBtn", "category", DesignOption::Category_Advanced, "AdvancedCh", false},
    {"ProductPageDesignSBtn", "product", DesignOption::ProductPage_Advanced, "AdvancedCh", true},
    {"SearchPageDesignSBtn", "search", DesignOption::SearchPage_Advanced, "AdvancedCh", true},
    {"ShoppingCartPageDesignSBtn", "cart", DesignOption::CartPage_Advanced, "chkAdvanced", true},
    {"BuyingFormDesignSBtn", "checkout", DesignOption::BuyingForm_Advanced, "AdvancedCh", false},
    {"CustomPagesDesignSBtn", "custompage", DesignOption::CustomPages_Advanced, "AdvancedCh", true},
};
