#include "Parts.h"
#include "Walk.h"
#include "editors/DateField.h"
#include "editors/LinkLabel.h"
#include "editors/TextArea.h"
#include "editors/catalogue/CustomGrid.h"
#include "shell/CatalogueTree.h"

#include <QDialog>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

// The panel's picture with an option chosen; nothing of it is submitted.
void keepOption(Walk& walk, const char* option, const QString& name)
{
    walk.in<QRadioButton>(option)->setChecked(true);
    walk.keep(name);
}

void walkShop(Walk& walk)
{
    walk.clickNode(walk.rootNode());
    walk.keep(u"shop_general"_s);
    walk.click("ShopDiscountSBtn");
    walk.keep(u"shop_discount"_s);
    keepOption(walk, "ApplyOpt", u"shop_discount_to_all"_s);
    walk.window.ResetActivePanel();
    walk.click("ShopTaxesSBtn");
    walk.keep(u"shop_taxes"_s);
    auto* grid = walk.in<CustomGrid>("TaxGrd")->BaseGrd;
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualItemRect(grid->item(1, 1)).center());
    walk.keep(u"shop_taxes_cell_open"_s);
    walk.in<QRadioButton>("optNoTax")->setChecked(true);
    walk.keep(u"shop_taxes_not_used"_s);
    walk.window.ResetActivePanel();
    walk.click("ShippingChargesSBtn");
    walk.keep(u"shop_charges"_s);
}

void walkCategory(Walk& walk, TreeNode* node)
{
    walk.clickNode(node);
    walk.keep(u"category_general"_s);
    walk.keepDialog(
        u"picture_picker"_s, [&] { walk.in<LinkLabel>("BrowseBtnLbl")->click(); },
        [](QDialog& dialog) {
            auto* pictures = Walk::partOf<QListWidget>(&dialog, "lstImages");
            pictures->setCurrentRow(pictures->count() / 2);
        });
    walk.click("CategoryDiscountSBtn");
    walk.keep(u"category_discount"_s);
    keepOption(walk, "DependOpt", u"category_discount_by_price"_s);
    QTest::mouseClick(walk.in<DateField>("DateFromTxt"), Qt::LeftButton);
    walk.keep(u"category_discount_month"_s);
    walk.in<MonthCalendar>("DateMV")->hide();
    keepOption(walk, "NoDiscountOpt", u"category_discount_none"_s);
    walk.window.ResetActivePanel();
}

void walkProduct(Walk& walk, TreeNode* node)
{
    walk.clickNode(node);
    walk.keep(u"product_general"_s);
    walk.click("ProductDiscountSBtn");
    walk.keep(u"product_discount"_s);
    keepOption(walk, "SpecificOpt", u"product_discount_specific"_s);
    walk.window.ResetActivePanel();
    walk.click("ProductPriceSbtn");
    walk.keep(u"product_prices"_s);
    walk.in<LinkLabel>("AddItemButtonLbl")->click();
    walk.keep(u"product_prices_new_row"_s);
    walk.window.ResetActivePanel();
    walk.click("ProductRelatedSBtn");
    walk.in<QTreeView>("AllProductsTree")->expandToDepth(1);
    walk.keep(u"product_related"_s);
}

} // namespace

void walkCataloguePanels(Walk& walk)
{
    walk.beginPart(u"panel"_s);
    TreeNode* root = walk.rootNode();
    walkShop(walk);
    walkCategory(walk, root->children.front().get());
    walkProduct(walk, Walk::findNode(root, [](const TreeNode& node) { return node.text == u"Breakfast mug"; }));
}

void walkCatalogueExtremes(Walk& walk)
{
    walk.beginPart(u"extreme"_s);
    const QString longName =
        u"Hand-thrown stoneware for the long table, with lids, ladles, trivets and the boards that they stand on, "
        "wood-fired in the third week of every second month"_s;
    walk.clickNode(walk.rootNode());
    walk.click("ShopNewCategorySBtn");
    walk.keep(u"new_category"_s);
    walk.in<QLineEdit>("CategoryNameTxt")->clear();
    QTest::keyClicks(walk.in<QLineEdit>("CategoryNameTxt"), longName);
    walk.click("CategoryDiscountSBtn");
    keepOption(walk, "DependOpt", u"no_bands"_s);
    walk.window.ResetActivePanel();
    walk.click("NewProductSBtn");
    walk.keep(u"new_product"_s);
    walk.in<QLineEdit>("ProductNameTxt")->clear();
    QTest::keyClicks(walk.in<QLineEdit>("ProductNameTxt"), longName);
    walk.in<TextArea>("ProductDescriptionTxt")->fill(QString(40, u'<') + QStringList(120, longName).join(u". "_s));
    walk.keep(u"long_texts"_s);
    walk.click("ProductPriceSbtn");
    walk.keep(u"no_prices"_s);
    walk.click("ProductRelatedSBtn");
    walk.keep(u"no_related_products"_s);
    walk.prompts.saysYes = true;
    walk.click("RemoveProductSBtn");
    walk.click("RemoveCategorySBtn");
    walk.prompts.saysYes = false;
}
