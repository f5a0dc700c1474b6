#include "Parts.h"
#include "Walk.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "shell/WindowKeys.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool isProduct(const TreeNode& node)
{
    return node.image == TreeImage::Product;
}

void keepBarMenu(Walk& walk, const char* name, const QString& picture)
{
    QMenuBar* bar = walk.window.menuBar();
    auto* menu = Walk::partOf<QMenu>(bar, name);
    const QRect entry = bar->actionGeometry(menu->menuAction());
    walk.keepMenu(menu, bar->mapToGlobal(entry.bottomLeft()), picture);
}

void keepPopUp(Walk& walk, TreeNode* node, const QString& picture)
{
    walk.clickNode(node);
    CatalogueTree* tree = walk.window.parts().CategoriesAndProductsTree;
    const QPoint place = tree->visualRect(tree->nodes().indexOf(node)).center();
    QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, place);
    auto* menu = Walk::partOf<QMenu>(&walk.window, "mnuPopUp");
    walk.keepMenu(menu, tree->viewport()->mapToGlobal(place), picture);
}

} // namespace

void walkModes(Walk& walk)
{
    walk.beginPart(u"window"_s);
    TreeNode* root = walk.rootNode();
    walk.keep(u"catalogue_shop"_s);
    walk.hover("SaveShopSBtn");
    walk.hover("ShopTaxesSBtn");
    walk.keep(u"button_under_the_mouse"_s);
    walk.leaveButtons();
    keepBarMenu(walk, "mnuShop", u"menu_shop"_s);
    keepBarMenu(walk, "mnuTools", u"menu_tools"_s);
    keepPopUp(walk, root, u"popup_shop"_s);
    keepPopUp(walk, root->children.front().get(), u"popup_category"_s);
    keepPopUp(walk, Walk::findNode(root, isProduct), u"popup_product"_s);
    walk.clickNode(root);
    // The frame stands for a third of a second, in which events run.
    walk.later(150, [&walk] { walk.keep(u"saving"_s); });
    walk.click("SaveShopSBtn");
    Walk::partOf<QAction>(&walk.window, findCommand)->trigger();
    QTest::keyClicks(Walk::partOf<QLineEdit>(&walk.window, "CatalogueFindTxt"), u"mug"_s);
    QTest::keyClick(Walk::partOf<QLineEdit>(&walk.window, "CatalogueFindTxt"), Qt::Key_Return);
    walk.keep(u"find_and_saved"_s);
    QTest::keyClick(Walk::partOf<QLineEdit>(&walk.window, "CatalogueFindTxt"), Qt::Key_Escape);
    walk.enter(MainForm::DesignMode);
    walk.keep(u"design"_s);
    walk.enter(MainForm::CatalogueMode);
}
