// The tree and the commands that add, remove and copy its nodes, in the real window.
#include "editors/Panel.h"
#include "look/TreeLook.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString warning = u"Warning"_s;

class Catalogue : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name>"
                "<Category><Id>3</Id><Name>Green</Name></Category>"
                "<Product><Id>4</Id><Name>Sencha</Name><Related/></Product></Category>");
        start();
    }

    TreeNode* selected() const { return window->parts().CategoriesAndProductsTree->selectedNode(); }
    QString panelName() const { return window->VisibleFrame ? window->VisibleFrame->objectName() : QString(); }
    std::shared_ptr<CategoryClass> category(const char* id)
    {
        return window->session().objects.Category(QLatin1String(id));
    }
};

TEST_F(Catalogue, StandsInTheTreeWithCategoriesBeforeProducts)
{
    const TreeNode* root = window->parts().CategoriesAndProductsTree->nodes().rootNode();
    ASSERT_EQ(root->children.size(), 1U);
    const TreeNode* tea = root->children[0].get();
    ASSERT_EQ(tea->children.size(), 2U);
    EXPECT_EQ(tea->children[0]->key, u"ID3"_s);
    EXPECT_EQ(tea->children[0]->image, TreeImage::Closed);
    EXPECT_EQ(tea->children[1]->key, u"ID4"_s);
    EXPECT_EQ(tea->children[1]->image, TreeImage::Product);
    EXPECT_EQ(tea->background, TreeColour);
    EXPECT_EQ(tea->foreground, TreeTextColour);
}

TEST_F(Catalogue, ShowsThePictureOfAnOpenCategoryAndAClosedRootAtFirst)
{
    CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
    TreeNode* root = tree->nodes().rootNode();
    const QModelIndex index = tree->nodes().indexOf(root);
    EXPECT_TRUE(tree->isExpanded(index));
    EXPECT_EQ(root->image, TreeImage::Closed);
    tree->collapse(index);
    EXPECT_EQ(root->image, TreeImage::Closed);
    tree->expand(index);
    EXPECT_EQ(root->image, TreeImage::Opened);
}

TEST_F(Catalogue, OfAShopWithoutCategoriesIsTheRootAlone)
{
    window.reset();
    useShop("<Version>1.2.0</Version><Name>Fern</Name><SelectedCountries/>");
    start();
    CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
    EXPECT_TRUE(tree->nodes().rootNode()->children.empty());
    EXPECT_TRUE(tree->isExpanded(tree->nodes().indexOf(tree->nodes().rootNode())));
    EXPECT_EQ(selected()->key, u"ID_SHOP"_s);
    EXPECT_EQ(panelName(), u"ShopGeneralPnl"_s);
}

TEST_F(Catalogue, ShowsAnOpenCategoryWhileItIsExpanded)
{
    CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
    TreeNode* tea = tree->nodes().rootNode()->children[0].get();
    for (const bool expanded : {true, false}) {
        clickNode(u"ID2"_s);
        QTest::keyClick(tree, expanded ? Qt::Key_Right : Qt::Key_Left);
        EXPECT_EQ(tree->isExpanded(tree->nodes().indexOf(tea)), expanded);
        EXPECT_EQ(tea->image, expanded ? TreeImage::Opened : TreeImage::Closed);
    }
}

TEST_F(Catalogue, OpensTheGeneralPanelOfAClickedNode)
{
    clickNode(u"ID4"_s);
    EXPECT_EQ(panelName(), u"ProductGeneralPnl"_s);
    EXPECT_TRUE(isShown("ProductToolbar"));
    clickNode(u"ID3"_s);
    EXPECT_EQ(panelName(), u"CategoryGeneralPnl"_s);
    EXPECT_TRUE(isShown("CategoryToolbar"));
    clickNode(u"ID_SHOP"_s);
    EXPECT_EQ(panelName(), u"ShopGeneralPnl"_s);
    EXPECT_TRUE(isShown("ShopToolbar"));
}

TEST_F(Catalogue, TakesANodeReachedByTheKeyboardAsClicked)
{
    clickNode(u"ID2"_s);
    QTest::keyClick(window->parts().CategoriesAndProductsTree, Qt::Key_Right);
    QTest::keyClick(window->parts().CategoriesAndProductsTree, Qt::Key_Down);
    EXPECT_EQ(window->SelectedNode->key, u"ID3"_s);
    EXPECT_EQ(panelName(), u"CategoryGeneralPnl"_s);
}

TEST_F(Catalogue, SelectsNothingOnARightClick)
{
    CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
    const QModelIndex tea = tree->nodes().indexOf(tree->nodes().rootNode()->children[0].get());
    QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, tree->visualRect(tea).center());
    EXPECT_EQ(selected()->key, u"ID_SHOP"_s);
    EXPECT_EQ(panelName(), u"ShopGeneralPnl"_s);
}

TEST_F(Catalogue, GetsANewRootCategory)
{
    click("ShopNewCategorySBtn");
    EXPECT_EQ(selected()->key, u"ID10"_s);
    EXPECT_EQ(selected()->text, u"New Category"_s);
    EXPECT_EQ(selected()->parent->key, u"ID_SHOP"_s);
    EXPECT_EQ(panelName(), u"CategoryGeneralPnl"_s);
    EXPECT_TRUE(isShown("CategoryToolbar"));
    EXPECT_EQ(category("10")->parentCategory.lock(), nullptr);
    EXPECT_TRUE(window->session().shop->Discount()->Childs().hasKey(u"10"_s));
}

TEST_F(Catalogue, GetsANewCategoryBelowACategory)
{
    clickNode(u"ID2"_s);
    click("NewCategorySBtn");
    EXPECT_EQ(selected()->parent->key, u"ID2"_s);
    EXPECT_EQ(category("10")->parentCategory.lock(), category("2"));
    EXPECT_EQ(category("10")->ParentDiscount.lock(), category("2")->Discount());
    EXPECT_TRUE(category("2")->Discount()->Childs().hasKey(u"10"_s));
    // After its siblings, whatever their kind.
    EXPECT_EQ(selected()->parent->children.back().get(), selected());
    EXPECT_EQ(selected()->parent->children.size(), 3U);
}

TEST_F(Catalogue, WaitsForTheNameOfWhatIsNew)
{
    const auto nameField = [this](const char* field) {
        const auto* name = window->VisibleFrame->findChild<QLineEdit*>(QLatin1String(field));
        return name && name->hasFocus() ? name->selectedText() : QString();
    };
    click("ShopNewCategorySBtn");
    EXPECT_EQ(nameField("CategoryNameTxt"), u"New Category"_s);
    clickNode(u"ID2"_s);
    EXPECT_EQ(nameField("CategoryNameTxt"), QString()) << "a click on a node leaves the focus with the tree";
    trigger("mnuAddCategory");
    EXPECT_EQ(nameField("CategoryNameTxt"), u"New Category"_s);
    clickNode(u"ID2"_s);
    click("NewProductSBtn");
    EXPECT_EQ(nameField("ProductNameTxt"), u"New Product"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"Cup"_s);
    EXPECT_EQ(selected()->text, u"Cup"_s);
}

TEST_F(Catalogue, TakesADoubleClickOnAToolbarButtonForOneClick)
{
    const auto twice = [](QWidget* first, QWidget* second) {
        QTest::mouseClick(first, Qt::LeftButton);
        QMouseEvent press(QEvent::MouseButtonDblClick, QPoint(5, 5), second->mapToGlobal(QPoint(5, 5)), Qt::LeftButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(second, &press);
        QTest::mouseRelease(second, Qt::LeftButton, {}, QPoint(5, 5));
    };
    const auto picture = [this](const char* button) {
        return find<ShortcartButton>(button)->findChild<QLabel*>(u"IconImg"_s);
    };
    const auto categories = [this] { return window->session().shop->categories.Count(); };
    const auto before = categories();
    twice(picture("ShopNewCategorySBtn"), picture("ShopNewCategorySBtn"));
    EXPECT_EQ(categories(), before + 1);
    // The category's toolbar now stands where the shop's was.
    clickNode(u"ID_SHOP"_s);
    twice(picture("ShopNewCategorySBtn"), picture("NewProductSBtn"));
    EXPECT_EQ(categories(), before + 2);
    EXPECT_TRUE(window->session().shop->categories.Item(before + 2)->products.isEmpty());
    // The next press is one again.
    click("NewProductSBtn");
    EXPECT_EQ(window->session().shop->categories.Item(before + 2)->products.Count(), 1);
}

TEST_F(Catalogue, GetsANewProduct)
{
    clickNode(u"ID3"_s);
    click("NewProductSBtn");
    EXPECT_EQ(selected()->key, u"ID10"_s);
    EXPECT_EQ(selected()->text, u"New Product"_s);
    EXPECT_EQ(panelName(), u"ProductGeneralPnl"_s);
    EXPECT_TRUE(isShown("ProductToolbar"));
    EXPECT_TRUE(category("3")->products.hasKey(u"ID10"_s));
    EXPECT_FALSE(category("3")->Discount()->Childs().hasKey(u"10"_s));
    const auto& product = window->session().objects.Product(u"10"_s);
    EXPECT_EQ(product->Price()->Discount()->ParentDependDiscounts, category("3")->Discount()->DependedDiscounts());
}

TEST_F(Catalogue, LandsOnTheCategoryWhenAProductIsRemoved)
{
    clickNode(u"ID4"_s);
    prompts.answerYesNo(warning, u"Are you sure you want to remove this product"_s, true);
    click("RemoveProductSBtn");
    EXPECT_EQ(selected()->key, u"ID2"_s);
    EXPECT_EQ(panelName(), u"CategoryGeneralPnl"_s);
    EXPECT_FALSE(category("2")->products.hasKey(u"ID4"_s));
    EXPECT_TRUE(window->session().objects.hasKey(u"ID4"_s)); // deliberately
}

TEST_F(Catalogue, LandsOnTheShopWhenItsLastCategoryIsRemoved)
{
    ASSERT_TRUE(window->session().shop->Discount()->Childs().hasKey(u"2"_s));
    clickNode(u"ID2"_s);
    prompts.answerYesNo(warning, u"Are you sure you want to remove this category"_s, true);
    click("RemoveCategorySBtn");
    EXPECT_EQ(selected()->key, u"ID_SHOP"_s);
    EXPECT_EQ(panelName(), u"ShopGeneralPnl"_s);
    EXPECT_TRUE(isShown("ShopToolbar"));
    EXPECT_TRUE(window->session().shop->categories.isEmpty());
    EXPECT_FALSE(window->session().shop->Discount()->Childs().hasKey(u"2"_s));
    for (const char* key : {"ID2", "ID3", "ID4"}) {
        EXPECT_FALSE(window->session().objects.hasKey(QLatin1String(key))) << key;
    }
}

TEST_F(Catalogue, LandsOnTheCategoryAboveWhenACategoryBelowItIsRemoved)
{
    ASSERT_TRUE(category("2")->Discount()->Childs().hasKey(u"3"_s));
    clickNode(u"ID3"_s);
    prompts.answerYesNo(warning, u"Are you sure you want to remove this category"_s, true);
    click("RemoveCategorySBtn");
    EXPECT_EQ(selected()->key, u"ID2"_s);
    EXPECT_EQ(window->SelectedNode, selected());
    EXPECT_EQ(panelName(), u"CategoryGeneralPnl"_s);
    EXPECT_TRUE(isShown("CategoryToolbar"));
    EXPECT_EQ(find<QLineEdit>("CategoryNameTxt")->text(), u"Tea"_s);
    EXPECT_TRUE(category("2")->categories.isEmpty());
    EXPECT_FALSE(category("2")->Discount()->Childs().hasKey(u"3"_s));
    EXPECT_FALSE(window->session().objects.hasKey(u"ID3"_s));
    EXPECT_TRUE(window->session().objects.hasKey(u"ID4"_s));
}

TEST_F(Catalogue, LandsOnTheProductWhenACategoryWhoseLineHangsBelowItIsRemoved)
{
    clickNode(u"ID4"_s);
    trigger("mnuProductsCatalog"); // the shop's panel, and still the product's line
    click("ShopNewCategorySBtn");
    prompts.answerYesNo(warning, u"Are you sure you want to remove this category"_s, true);
    click("RemoveCategorySBtn");
    EXPECT_EQ(selected()->key, u"ID4"_s);
    EXPECT_EQ(panelName(), u"ProductGeneralPnl"_s);
    EXPECT_TRUE(isShown("ProductToolbar"));
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(Catalogue, SavesNothingWhenARemovalIsRefusedAndKeepsThePanelBound)
{
    struct Refusal
    {
        const char* node;
        const char* button;
        const char* field;
        const char* question;
    };
    const auto nameOf = [this](const char* node) {
        const CatalogueObject object = window->session().objects.Item(QLatin1String(node));
        const auto* held = std::get_if<std::shared_ptr<CategoryClass>>(&object);
        return held ? (*held)->name : std::get<std::shared_ptr<ProductClass>>(object)->name;
    };
    for (const Refusal& row :
         {Refusal{"ID4", "RemoveProductSBtn", "ProductNameTxt", "Are you sure you want to remove this product"},
          Refusal{"ID3", "RemoveCategorySBtn", "CategoryNameTxt", "Are you sure you want to remove this category"}}) {
        SCOPED_TRACE(row.node);
        clickNode(QLatin1String(row.node));
        const QString before = nameOf(row.node);
        find<QLineEdit>(row.field)->setText(u"Matcha"_s);
        prompts.answerYesNo(warning, QLatin1String(row.question), false);
        click(row.button);
        EXPECT_TRUE(isShown(row.field));
        EXPECT_EQ(find<QLineEdit>(row.field)->text(), u"Matcha"_s);
        EXPECT_EQ(nameOf(row.node), before);
        window->ApplyActivePanel();
        EXPECT_EQ(nameOf(row.node), u"Matcha"_s);
    }
}

TEST_F(Catalogue, StaysAsItIsWhenARemovalIsRefused)
{
    clickNode(u"ID4"_s);
    prompts.answerYesNo(warning, u"Are you sure you want to remove this product"_s, false);
    click("RemoveProductSBtn");
    EXPECT_EQ(selected()->key, u"ID4"_s);
    EXPECT_EQ(panelName(), u"ProductGeneralPnl"_s);
    EXPECT_TRUE(isShown("ProductGeneralPnl"));
    EXPECT_TRUE(category("2")->products.hasKey(u"ID4"_s));
}

TEST_F(Catalogue, NamesADuplicateOfAProductACopy)
{
    clickNode(u"ID4"_s);
    window->ShowFrame(find<Panel>("ProductGeneralPnl"), 5);
    EXPECT_EQ(selected()->text, u"Sencha copy"_s);
    EXPECT_EQ(selected()->parent->key, u"ID2"_s);
    window->ShowFrame(find<Panel>("ProductGeneralPnl"), 5);
    EXPECT_EQ(selected()->text, u"Sencha copy copy"_s);
    EXPECT_EQ(category("2")->products.Count(), 3);
}

} // namespace
