#include "Parts.h"
#include "Walk.h"
#include "editors/design/pickers/PictureFiles.h"
#include "model/ShopSession.h"
#include "shell/DialogPrompts.h"

#include <QCheckBox>
#include <QDialog>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

struct ManagerStop
{
    const char* button;
    const char* picture;
};

constexpr ManagerStop managers[] = {
    {"MainPageDesignSBtn", "main_page"},
    {"HeaderDesignSBtn", "header"},
    {"FooterDesignSBtn", "footer"},
    {"MenuDesignSBtn", "menu"},
    {"CategoryPageDesignSBtn", "category_page"},
    {"ProductPageDesignSBtn", "product_page"},
    {"SearchPageDesignSBtn", "search_page"},
    {"CustomPagesDesignSBtn", "custom_pages"},
    {"ShoppingCartPageDesignSBtn", "cart_page"},
    {"BuyingFormDesignSBtn", "buying_form"},
};

void clickIn(Walk& walk, const char* name)
{
    walk.in<QPushButton>(name)->click();
}

} // namespace

void walkDesignManagers(Walk& walk)
{
    walk.beginPart(u"design"_s);
    walk.enter(MainForm::DesignMode);
    for (const ManagerStop& stop : managers) {
        walk.click(stop.button);
        walk.keep(QLatin1String(stop.picture));
    }
    walk.click("CustomPagesDesignSBtn");
    walk.in<QListWidget>("CustomPagesListCtl")->setCurrentRow(0);
    walk.keep(u"custom_page_open"_s);

    walk.click("CategoryPageDesignSBtn");
    auto* tabs = walk.in<QTabWidget>("PagesTab");
    tabs->setCurrentIndex(1);
    walk.keep(u"template_basic"_s);
    walk.prompts.saysYes = true;
    walk.in<QCheckBox>("AdvancedCh")->click();
    walk.keep(u"template_advanced"_s);
    walk.in<QCheckBox>("AdvancedCh")->click();
    walk.prompts.saysYes = false;
    tabs->setCurrentIndex(0);
}

void walkDialogs(Walk& walk)
{
    walk.beginPart(u"dialog"_s);
    walk.enter(MainForm::DesignMode);
    walk.click("HeaderDesignSBtn");
    walk.keepDialog(u"style"_s, [&] { clickIn(walk, "btnCSS_general_header"); });
    walk.keepDialog(u"image"_s, [&] { clickIn(walk, "lblLogo"); });
    walk.keepDialog(
        u"text_instead_of_image"_s, [&] { clickIn(walk, "lblLogo"); },
        [](QDialog& dialog) { Walk::partOf<QCheckBox>(&dialog, "chkText")->setChecked(true); });
    walk.keepDialog(u"pages_of_a_menu"_s, [&] { clickIn(walk, "lblSelectedCustomPageBttn"); });
    walk.click("MainPageDesignSBtn");
    walk.keepDialog(u"home_page"_s, [&] { clickIn(walk, "lblShowCustomPageAsMain"); });
    walk.enter(MainForm::CatalogueMode);
    DialogPrompts real; // nobody answers the toolkit's own boxes
    real.setParentWindow(&walk.window);
    walk.keepDialog(u"choose_file"_s,
                    [&] { real.chooseFile(walk.window.session().folder.picturesFolder(), pictureFileFilter()); });
    walk.keepDialog(u"question"_s,
                    [&] { real.askYesNoCancel(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s); });
    walk.keepDialog(u"upload"_s, [&] { Walk::partOf<QAction>(&walk.window, "mnuUpload")->trigger(); });
}
