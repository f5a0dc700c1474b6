// Finding in the catalogue: what a text finds, and where Enter leads.
#include "editors/Panel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "shell/CatalogueTree.h"
#include "support/Hands.h"
#include "support/WindowTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// In the tree's order: Tea (2), Green (3), Sencha (4), Gyokuro (5), Oolong (6), Cups (7), Tea cup (8).
class Find : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern and tea</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name>"
                "<Category><Id>3</Id><Name>Gr\xC3\xBCn</Name>"
                "<Product><Id>4</Id><Name>Sencha</Name><Code>T-100</Code><Related/></Product>"
                "<Product><Id>5</Id><Name>Gyokuro</Name><Code>T-200</Code><Description>tea</Description><Related/>"
                "</Product></Category>"
                "<Product><Id>6</Id><Name>Oolong</Name><Code>W-300</Code><Related/></Product></Category>"
                "<Category><Id>7</Id><Name>Cups</Name>"
                "<Product><Id>8</Id><Name>Tea cup</Name><Code>C-10</Code><Related/></Product></Category>");
        start();
    }

    CatalogueTree* tree() const { return window->parts().CategoriesAndProductsTree; }
    QLineEdit* field() const { return find<QLineEdit>("CatalogueFindTxt"); }
    QString shown() const { return find<QLabel>("lblFound")->text(); }

    void ask(const QString& text)
    {
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window.get(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_EQ(window->focusWidget(), field());
        Hands::pressKeys(field(), text);
    }
    void enter(Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(field(), Qt::Key_Return, modifiers); }
};

TEST_F(Find, OpensAtTheFootOfTheTreeAndGivesTheRoomBack)
{
    EXPECT_FALSE(isShown("FindLine"));
    const QRect before = tree()->geometry();
    find<QLineEdit>("ShopNameTxt")->setFocus();
    ask(u"x"_s);
    EXPECT_TRUE(isShown("FindLine"));
    const QRect line = find("FindLine")->geometry();
    EXPECT_EQ(line.top(), tree()->geometry().bottom() + 1);
    EXPECT_EQ(line.bottom(), before.bottom());
    EXPECT_EQ(line.width(), before.width());
    QTest::keyClick(field(), Qt::Key_Escape);
    EXPECT_FALSE(isShown("FindLine"));
    EXPECT_EQ(tree()->geometry(), before);
    EXPECT_TRUE(tree()->hasFocus());
}

TEST_F(Find, StandsBehindTheTreeForTab)
{
    ask({});
    QTest::keyClick(field(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(tree()->hasFocus());
    QTest::keyClick(tree(), Qt::Key_Tab);
    EXPECT_TRUE(field()->hasFocus());
}

TEST_F(Find, ComesBackWithItsTextSelected)
{
    ask(u"cup"_s);
    QTest::keyClick(field(), Qt::Key_Escape);
    ask({});
    EXPECT_EQ(field()->selectedText(), u"cup"_s);
    EXPECT_EQ(shown(), u"2 found"_s);
}

TEST_F(Find, FindsAPartOfANameOrACodeWhateverTheCase)
{
    const struct
    {
        QString text;
        QStringList keys; // where Enter leads, one after the other
    } rows[] = {
        {u"tea"_s, {u"ID2"_s, u"ID8"_s}}, // neither the shop nor a description
        {u"TEA"_s, {u"ID2"_s, u"ID8"_s}},
        {u"ENCH"_s, {u"ID4"_s}},
        {u"gr\u00DCn"_s, {u"ID3"_s}},
        {u"t-"_s, {u"ID4"_s, u"ID5"_s}},
        {u"00"_s, {u"ID4"_s, u"ID5"_s, u"ID6"_s}},
        {u"c"_s, {u"ID4"_s, u"ID7"_s, u"ID8"_s}}, // a hit by name and code counts once
        {u"tea cup"_s, {u"ID8"_s}},
        {u" cup"_s, {u"ID8"_s}}, // a blank is a letter like any other
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        clickNode(u"ID_SHOP"_s);
        Hands::press(tree()); // the focus
        ask({});
        field()->clear();
        Hands::pressKeys(field(), row.text);
        EXPECT_EQ(shown(), u"%1 found"_s.arg(row.keys.size()));
        for (qsizetype hit = 0; hit < row.keys.size(); ++hit) {
            enter();
            EXPECT_EQ(window->SelectedNode->key, row.keys[hit]);
            EXPECT_EQ(shown(), u"%1 of %2"_s.arg(hit + 1).arg(row.keys.size()));
        }
        enter(); // and from the beginning
        EXPECT_EQ(window->SelectedNode->key, row.keys.front());
    }
}

// A category that was added while panel and node differed stands below a product.
TEST_F(Find, FindsTheCodeOfAProductWithAnOpenNode)
{
    clickNode(u"ID4"_s);
    trigger("mnuProductsCatalog");
    click("ShopNewCategorySBtn");
    ASSERT_EQ(window->SelectedNode->parent->key, u"ID4"_s);
    EXPECT_EQ(window->SelectedNode->parent->image, TreeImage::Opened);
    ask(u"T-1"_s);
    EXPECT_EQ(shown(), u"1 found"_s);
    enter();
    EXPECT_EQ(window->SelectedNode->key, u"ID4"_s);
}

TEST_F(Find, SelectsNothingWhileOneTypes)
{
    clickNode(u"ID6"_s);
    ask(u"tea"_s);
    EXPECT_EQ(window->SelectedNode->key, u"ID6"_s);
    EXPECT_EQ(tree()->selectedNode()->key, u"ID6"_s);
}

TEST_F(Find, GoesOnBelowTheCurrentRow)
{
    clickNode(u"ID6"_s);
    ask(u"tea"_s);
    enter();
    EXPECT_EQ(window->SelectedNode->key, u"ID8"_s);
    enter();
    EXPECT_EQ(window->SelectedNode->key, u"ID2"_s);
    clickNode(u"ID6"_s);
    enter(Qt::ShiftModifier);
    EXPECT_EQ(window->SelectedNode->key, u"ID2"_s);
    enter(Qt::ShiftModifier);
    EXPECT_EQ(window->SelectedNode->key, u"ID8"_s);
}

TEST_F(Find, DoesWithEnterWhatAClickDoes)
{
    clickNode(u"ID8"_s);
    tree()->collapseAll();
    Hands::type(find<QLineEdit>("ProductNameTxt"), u"Beaker"_s);
    int clicks = 0;
    QObject::connect(tree(), &CatalogueTree::nodeClicked, tree(), [&] { ++clicks; });
    ask(u"gyo"_s);
    enter();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(window->SelectedNode->key, u"ID5"_s);
    EXPECT_EQ(tree()->selectedNode(), window->SelectedNode);
    EXPECT_TRUE(tree()->viewport()->rect().contains(tree()->visualRect(tree()->currentIndex()).center()));
    EXPECT_EQ(window->ActiveObject, window->session().objects.Item(u"ID5"_s));
    EXPECT_EQ(window->VisibleFrame->objectName(), u"ProductGeneralPnl"_s);
    EXPECT_EQ(find<QLineEdit>("ProductNameTxt")->text(), u"Gyokuro"_s);
    EXPECT_TRUE(isShown("ProductToolbar"));
    EXPECT_EQ(window->session().objects.Product(u"8"_s)->name, u"Beaker"_s); // the panel before was saved
    EXPECT_EQ(window->focusWidget(), field());
}

TEST_F(Find, TellsWhenNothingIsFoundAndStays)
{
    clickNode(u"ID6"_s);
    ask(u"coffee"_s);
    EXPECT_EQ(shown(), u"Nothing found"_s);
    enter();
    EXPECT_EQ(window->SelectedNode->key, u"ID6"_s);
    field()->clear();
    EXPECT_EQ(shown(), QString());
    enter();
    EXPECT_EQ(window->SelectedNode->key, u"ID6"_s);
}

TEST_F(Find, CountsAnewWhenTheCatalogueChanges)
{
    clickNode(u"ID8"_s);
    ask(u"tea"_s);
    EXPECT_EQ(shown(), u"2 of 2"_s);
    Hands::type(find<QLineEdit>("ProductNameTxt"), u"Beaker"_s);
    EXPECT_EQ(shown(), u"1 found"_s);
    Hands::type(find<QLineEdit>("ProductNameTxt"), u"Tea bowl"_s);
    EXPECT_EQ(shown(), u"2 of 2"_s);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s, true);
    trigger("mnuRemoveProduct");
    EXPECT_EQ(shown(), u"1 found"_s);
    clickNode(u"ID2"_s);
    EXPECT_EQ(shown(), u"1 of 1"_s);
}

TEST_F(Find, StaysOpenBehindTheOtherModes)
{
    ask(u"tea"_s);
    trigger("mnuShopPreview");
    errors.numbers.clear(); // there are no templates here
    EXPECT_FALSE(isShown("FindLine"));
    trigger("mnuProductsCatalog");
    EXPECT_TRUE(isShown("FindLine"));
    EXPECT_EQ(field()->text(), u"tea"_s);
}

TEST_F(Find, WithoutAShopFindsNothing)
{
    window.reset();
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick/>");
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"Error in the configuration XML file. No 'Shop' node."_s);
    start();
    ask(u"tea"_s);
    EXPECT_EQ(shown(), u"Nothing found"_s);
    enter();
    EXPECT_TRUE(errors.numbers.empty());
}

} // namespace
