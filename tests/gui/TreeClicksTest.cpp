// What the mouse does in the tree: only a press and release of the left button on one node is a click. Whatever else it
// does leaves selection, panel and catalogue as they were, and the commands keep to the node that was clicked.
#include "editors/Panel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "shell/CatalogueTree.h"
#include "support/Hands.h"
#include "support/WindowTest.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString warning = u"Warning"_s;

class TreeClicks : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name>"
                "<Category><Id>3</Id><Name>Green</Name></Category>"
                "<Product><Id>4</Id><Name>Sencha</Name><Related/></Product>"
                "<Product><Id>5</Id><Name>Matcha</Name><Related/></Product></Category>");
        start();
        clickNode(u"ID4"_s);
    }

    CatalogueTree* tree() const { return window->parts().CategoriesAndProductsTree; }
    TreeNode* node(const char* key) const { return tree()->nodes().nodeWithKey(QLatin1String(key)); }
    QPoint placeOf(const char* key) const { return tree()->visualRect(tree()->nodes().indexOf(node(key))).center(); }
    QPoint besideNodes() const { return {tree()->viewport()->width() / 2, tree()->viewport()->height() - 5}; }

    void press(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(tree()->viewport(), button, {}, place);
    }
    void release(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(tree()->viewport(), button, {}, place);
    }
    void moveTo(const QPoint& place)
    {
        QMouseEvent move(QEvent::MouseMove, place, tree()->viewport()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(tree()->viewport(), &move);
    }

    // Node, row, highlight, object and panel are all of Sencha.
    void expectSencha() const
    {
        EXPECT_EQ(window->SelectedNode, node("ID4"));
        EXPECT_EQ(tree()->selectedNode(), node("ID4"));
        ASSERT_EQ(tree()->selectionModel()->selectedIndexes().size(), 1);
        EXPECT_EQ(tree()->nodes().nodeOf(tree()->selectionModel()->selectedIndexes()[0]), node("ID4"));
        EXPECT_EQ(window->ActiveObject, window->session().objects.Item(u"ID4"_s));
        ASSERT_NE(window->VisibleFrame, nullptr);
        EXPECT_EQ(window->VisibleFrame->objectName(), u"ProductGeneralPnl"_s);
        EXPECT_EQ(find<QLineEdit>("ProductNameTxt")->text(), u"Sencha"_s);
    }
};

TEST_F(TreeClicks, ChangeNothingWhenTheButtonIsReleasedElsewhere)
{
    const QPoint outside(tree()->viewport()->width() + 300, 20);
    for (const QPoint& end : {placeOf("ID3"), besideNodes(), outside}) {
        press(placeOf("ID2"));
        expectSencha();
        release(end);
        expectSencha();
    }
    press(besideNodes());
    release(placeOf("ID2"));
    expectSencha();
}

TEST_F(TreeClicks, ChangeNothingWhenTheMouseIsDraggedOverRows)
{
    press(placeOf("ID_SHOP"));
    for (const char* key : {"ID2", "ID3", "ID5"}) {
        moveTo(placeOf(key));
        expectSencha();
    }
    release(placeOf("ID5"));
    expectSencha();
}

TEST_F(TreeClicks, ChangeNothingWithTheMiddleAndSideButtons)
{
    for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
        for (const QPoint& place : {placeOf("ID2"), besideNodes()}) {
            press(place, button);
            release(place, button);
            QTest::mouseDClick(tree()->viewport(), button, {}, place);
            expectSencha();
        }
    }
}

TEST_F(TreeClicks, ChangeNothingBesideTheNodes)
{
    press(besideNodes());
    release(besideNodes());
    expectSencha();
}

TEST_F(TreeClicks, SelectTheNodeWithTheControlKeyToo)
{
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf("ID4"));
    expectSencha();
}

TEST_F(TreeClicks, OpenAndCloseANodeOnItsMarkAndSelectNothing)
{
    const QModelIndex tea = tree()->nodes().indexOf(node("ID2"));
    const QPoint mark(tree()->visualRect(tea).left() - tree()->indentation() / 2, placeOf("ID2").y());
    for (const bool isOpen : {false, true}) {
        press(mark);
        release(mark);
        EXPECT_EQ(tree()->isExpanded(tea), isOpen);
        expectSencha();
    }
}

TEST_F(TreeClicks, OpenAndCloseANodeByADoubleClickThatIsOneClick)
{
    const QModelIndex tea = tree()->nodes().indexOf(node("ID2"));
    ASSERT_TRUE(tree()->isExpanded(tea));
    int clicks = 0;
    QObject::connect(tree(), &CatalogueTree::nodeClicked, tree(), [&] { ++clicks; });
    press(placeOf("ID2"));
    release(placeOf("ID2"));
    QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {}, placeOf("ID2"));
    release(placeOf("ID2"));
    EXPECT_FALSE(tree()->isExpanded(tea));
    EXPECT_EQ(window->SelectedNode, node("ID2"));
    EXPECT_EQ(clicks, 1);
}

TEST_F(TreeClicks, KeepThePictureOfAProductThatIsClickedTwice)
{
    press(placeOf("ID4"));
    release(placeOf("ID4"));
    QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {}, placeOf("ID4"));
    release(placeOf("ID4"));
    EXPECT_EQ(node("ID4")->image, TreeImage::Product);
    expectSencha();
}

TEST_F(TreeClicks, RenameTheNodeOfThePanelsObject)
{
    press(placeOf("ID2"));
    release(besideNodes());
    Hands::type(find<QLineEdit>("ProductNameTxt"), u"Gyokuro"_s);
    EXPECT_EQ(node("ID4")->text, u"Gyokuro"_s);
    EXPECT_EQ(node("ID2")->text, u"Tea"_s);
}

// After "Products Catalog" the shop's panel is open and the selected node is another one.
TEST_F(TreeClicks, LeaveTheShopsNameToTheRoot)
{
    click("ProductCatalogSBtn");
    EXPECT_EQ(window->SelectedNode, node("ID4"));
    Hands::type(find<QLineEdit>("ShopNameTxt"), u"Moss"_s);
    EXPECT_EQ(node("ID_SHOP")->text, u"Moss"_s);
    EXPECT_EQ(node("ID4")->text, u"Sencha"_s);
}

TEST_F(TreeClicks, RenameNothingFromAPanelThatIsBoundToNothing)
{
    for (const auto& [panel, field] : {std::pair("ShopGeneralPnl", "ShopNameTxt"),
                                       {"CategoryGeneralPnl", "CategoryNameTxt"},
                                       {"ProductGeneralPnl", "ProductNameTxt"}}) {
        SCOPED_TRACE(panel);
        window->ActiveObject = {};
        window->ShowFrame(find<Panel>(panel), PanelCode::Show);
        Hands::type(find<QLineEdit>(field), u"Moss"_s);
        for (const char* key : {"ID_SHOP", "ID2", "ID4"}) {
            EXPECT_NE(node(key)->text, u"Moss"_s) << key;
        }
    }
}

TEST_F(TreeClicks, RemoveTheProductThatWasClicked)
{
    for (const char* pressed : {"ID_SHOP", "ID2", "ID5"}) {
        SCOPED_TRACE(pressed);
        window.reset();
        QFile::remove(files.folder().unsavedShopFile()); // else the start offers what was removed
        start();
        clickNode(u"ID4"_s);
        press(placeOf(pressed));
        release(besideNodes());
        prompts.answerYesNo(warning, u"Are you sure you want to remove this product"_s, true);
        click("RemoveProductSBtn");
        EXPECT_EQ(node("ID4"), nullptr);
        EXPECT_NE(node("ID5"), nullptr);
        EXPECT_EQ(window->SelectedNode, node("ID2"));
        EXPECT_EQ(tree()->selectedNode(), node("ID2"));
        EXPECT_EQ(window->session().objects.Category(u"2"_s)->products.Count(), 1);
    }
}

TEST_F(TreeClicks, DuplicateTheProductThatWasClicked)
{
    press(placeOf("ID_SHOP"));
    release(besideNodes());
    trigger("mnuDuplicateProduct");
    EXPECT_EQ(window->SelectedNode->text, u"Sencha copy"_s);
    EXPECT_EQ(window->SelectedNode->parent, node("ID2"));
    EXPECT_EQ(tree()->nodes().rootNode()->key, u"ID_SHOP"_s);
}

TEST_F(TreeClicks, PutNewProductsIntoTheCategoryThatWasClicked)
{
    clickNode(u"ID3"_s);
    press(placeOf("ID_SHOP"));
    release(besideNodes());
    click("NewProductSBtn");
    EXPECT_EQ(window->SelectedNode->parent, node("ID3"));
    EXPECT_EQ(tree()->selectedNode(), window->SelectedNode);
}

} // namespace
