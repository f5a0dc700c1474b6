#include "CataloguePanels.h"

#include "editors/DateField.h"
#include "editors/LinkLabel.h"
#include "editors/Panel.h"
#include "editors/catalogue/CustomGrid.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"
#include "shell/ShortcartButton.h"

#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

class Walk
{
public:
    Walk(MainForm& window, const std::function<void(const QString&)>& keep) : m_window(window), m_keep(keep) {}

    void click(const char* button)
    {
        auto* shortcart = m_window.findChild<ShortcartButton*>(QLatin1String(button));
        QTest::mouseClick(shortcart->findChild<QLabel*>(u"IconImg"_s), Qt::LeftButton);
    }
    void clickNode(TreeNode* node)
    {
        CatalogueTree* tree = m_window.parts().CategoriesAndProductsTree;
        for (TreeNode* above = node->parent; above; above = above->parent) {
            tree->expandNode(above);
        }
        const QModelIndex index = tree->nodes().indexOf(node);
        tree->scrollTo(index);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
    }
    template <class Widget>
    Widget* in(const char* name) const
    {
        return m_window.VisibleFrame->findChild<Widget*>(QLatin1String(name));
    }
    // Shows a panel that no button leads to.
    void showPanel(const char* name)
    {
        m_window.ShowFrame(m_window.findChild<Panel*>(QLatin1String(name)), PanelCode::Show);
    }
    void keep(const QString& name) const { m_keep(u"panel_"_s + name); }
    // The same with an option chosen; nothing of it is submitted.
    void keepOption(const char* option, const QString& name) const
    {
        in<QRadioButton>(option)->setChecked(true);
        keep(name);
    }

    void shop();
    void category(TreeNode* node);
    void product(TreeNode* node);

private:
    void picker();

    MainForm& m_window;
    const std::function<void(const QString&)>& m_keep;
};

void Walk::shop()
{
    keep(u"shop_general"_s);
    click("ShopDiscountSBtn");
    keep(u"shop_discount"_s);
    keepOption("DependOpt", u"shop_discount_bands"_s);
    m_window.ResetActivePanel();
    click("ShopTaxesSBtn");
    keep(u"shop_taxes"_s);
    click("ShippingChargesSBtn");
    keep(u"shop_charges"_s);
    showPanel("ShopsShippingPnl");
    keep(u"shop_shipping_types"_s);
    click("ShopGeneralSBtn");
}

void Walk::category(TreeNode* node)
{
    clickNode(node);
    keep(u"category_general"_s);
    picker();
    click("CategoryDiscountSBtn");
    keepOption("ApplyOpt", u"category_discount"_s);
    QTest::mouseClick(in<DateField>("DateFromTxt"), Qt::LeftButton);
    keep(u"category_discount_month"_s);
    in<MonthCalendar>("DateMV")->hide();
    keepOption("InheritOpt", u"category_discount_inherited"_s);
    m_window.ResetActivePanel();
}

void Walk::picker()
{
    QTimer::singleShot(0, &m_window, [this] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* pictures = dialog->findChild<QListWidget*>(u"lstImages"_s);
        pictures->setCurrentRow(pictures->count() / 2);
        keep(u"picture_picker"_s);
        dialog->reject();
    });
    in<LinkLabel>("BrowseBtnLbl")->click();
}

void Walk::product(TreeNode* node)
{
    clickNode(node);
    keep(u"product_general"_s);
    click("ProductDiscountSBtn");
    keepOption("SpecificOpt", u"product_discount"_s);
    m_window.ResetActivePanel();
    click("ProductPriceSbtn");
    in<CustomGrid>("MultipriceGrd")->AddItemButtonLbl->click();
    keep(u"product_prices"_s);
    m_window.ResetActivePanel();
    click("ProductRelatedSBtn");
    in<QTreeView>("AllProductsTree")->expandToDepth(1);
    keep(u"product_related"_s);
    showPanel("ProductShippingCostsPnl");
    keep(u"product_shipping_costs"_s);
    click("ProductGeneralSBtn");
}

} // namespace

void walkCataloguePanels(MainForm& window, const std::function<void(const QString& name)>& keep)
{
    Walk walk(window, keep);
    TreeNode* node = window.parts().CategoriesAndProductsTree->nodes().rootNode();
    walk.clickNode(node);
    walk.shop();
    if (node->children.empty()) {
        return;
    }
    node = node->children.front().get();
    walk.category(node);
    while (!node->children.empty() && node->children.front()->image != TreeImage::Product) {
        node = node->children.front().get();
    }
    if (!node->children.empty()) {
        walk.product(node->children.front().get());
    }
}
