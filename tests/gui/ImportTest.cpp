// Importing products from the window's menu.
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/clsImporter.h"
#include "shell/CatalogueTree.h"
#include "shell/ImportIntoTree.h"
#include "support/WindowTest.h"

#include <QFile>
#include <QProgressBar>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

class Import : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name></Category>");
        start();
    }

    void import(const QByteArray& lines)
    {
        writeFile(files.path(u"products.txt"_s), lines);
        prompts.answerFile(files.path(u"products.txt"_s));
        trigger("mnuImport");
    }

    const TreeNode* root() const { return window->parts().CategoriesAndProductsTree->nodes().rootNode(); }
};

TEST_F(Import, AsksForAFileInTheApplicationFolderAndEndsOnCancel)
{
    prompts.answerFile(QString());
    trigger("mnuImport");
    EXPECT_EQ(prompts.fileQuestions.value(0), files.folder().path());
    EXPECT_EQ(root()->children.size(), 1U);
}

TEST_F(Import, PutsProductsAndMissingCategoriesIntoModelAndTree)
{
    import("Sencha,fine leaves,Tea\\Green\nRooibos,red,Herbal\n");
    ASSERT_EQ(root()->children.size(), 2U);
    const TreeNode* tea = root()->children[0].get();
    ASSERT_EQ(tea->children.size(), 1U);
    const TreeNode* green = tea->children[0].get();
    EXPECT_EQ(green->text, u"Green"_s);
    ASSERT_EQ(green->children.size(), 1U);
    EXPECT_EQ(green->children[0]->text, u"Sencha"_s);
    EXPECT_EQ(green->children[0]->image, TreeImage::Product);
    EXPECT_EQ(root()->children[1]->text, u"Herbal"_s);
    const auto& sencha = window->session().objects.Product(u"11"_s);
    EXPECT_EQ(sencha->Description, u"fine leaves"_s);
    EXPECT_EQ(sencha->shop, nullptr);
    EXPECT_EQ(window->session().objects.Category(u"10"_s)->shop, nullptr);
}

TEST_F(Import, ShowsItsNodesAndKeepsTheSelection)
{
    clickNode(u"ID2"_s);
    import("Sencha,fine,Tea\n");
    EXPECT_EQ(window->SelectedNode->key, u"ID2"_s);
    EXPECT_EQ(window->parts().CategoriesAndProductsTree->selectedNode()->key, u"ID2"_s);
    clickNode(u"ID10"_s);
    EXPECT_TRUE(isShown("ProductGeneralPnl"));
}

TEST_F(Import, GoesOnInACategoryThatStandsBelowAProductsNode)
{
    import("Sencha,fine,Tea\n");
    clickNode(u"ID10"_s);
    click("ProductCatalogSBtn");
    click("ShopNewCategorySBtn"); // a root category, but its node stands below the selected one
    ASSERT_EQ(window->SelectedNode->parent->key, u"ID10"_s);
    import("Rooibos,red,New Category\nMatcha,green,Tea\n");
    EXPECT_EQ(root()->key, u"ID_SHOP"_s);
    ASSERT_EQ(window->SelectedNode->children.size(), 1U);
    EXPECT_EQ(window->SelectedNode->children[0]->text, u"Rooibos"_s);
    EXPECT_EQ(root()->children[0]->children.back()->text, u"Matcha"_s);
}

TEST_F(Import, TakesACategoryWhoseNodeHasGoneWithAnother)
{
    import("Sencha,fine,Tea\n");
    clickNode(u"ID10"_s);
    click("ProductCatalogSBtn");
    click("ShopNewCategorySBtn");
    clickNode(u"ID10"_s);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s, true);
    click("RemoveProductSBtn"); // takes the node of the root category with it
    import("Rooibos,red,New Category\n");
    EXPECT_EQ(root()->key, u"ID_SHOP"_s);
    EXPECT_EQ(root()->children.size(), 1U);
    EXPECT_EQ(window->session().objects.Product(u"12"_s)->name, u"Rooibos"_s);
}

TEST_F(Import, WithoutAShopLeavesTheTreeEmpty)
{
    window.reset();
    ASSERT_TRUE(QFile::remove(files.path(u"shop.xml"_s)));
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"Error in the configuration XML file. No 'Shop' node."_s);
    start();
    writeFile(files.path(u"products.txt"_s), "Sencha,fine,Tea\n");
    prompts.answerFile(files.path(u"products.txt"_s));
    prompts.expectMessage(
        u"Ambrel eCommerce Software"_s,
        u"Line 1: %1\n0 products imported"_s.arg(RuntimeError(ErrorNumber::ObjectNotSet).description()),
        PromptIcon::Warning);
    trigger("mnuImport");
    EXPECT_EQ(root(), nullptr);
}

TEST_F(Import, ReportsALineThatIsTooShortInABoxAndKeepsWhatCameBefore)
{
    prompts.answerFile(files.path(u"products.txt"_s));
    prompts.expectMessage(
        u"Ambrel eCommerce Software"_s,
        u"Line 2: %1\n1 product imported"_s.arg(RuntimeError(ErrorNumber::SubscriptOutOfRange).description()),
        PromptIcon::Warning);
    writeFile(files.path(u"products.txt"_s), "Sencha,fine,Tea\nshort,line\nLost,line,Tea\n");
    trigger("mnuImport");
    EXPECT_EQ(root()->children[0]->children.size(), 1U);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(Import, ReportsAFileThatCannotBeOpenedInABox)
{
    prompts.answerFile(files.path(u"gone.txt"_s));
    int shown = 0;
    try {
        (void)clsImporter(window->session()).Import(files.path(u"gone.txt"_s));
    } catch (const RuntimeError& error) {
        prompts.expectMessage(u"Ambrel eCommerce Software"_s, error.description(), PromptIcon::Warning);
        ++shown;
    }
    ASSERT_EQ(shown, 1);
    trigger("mnuImport");
}

TEST_F(Import, MakesTheNodesThatALineAsksFor)
{
    struct Line
    {
        const char* line;
        QStringList path; // from below the root to the product
        const char* description;
    };
    const Line lines[] = {
        {"a,b,c", {u"c"_s, u"a"_s}, "b"},         {"a,b,x\\y\\z", {u"x"_s, u"y"_s, u"z"_s, u"a"_s}, "b"},
        {"\"a,b\",c,d", {u"d"_s, u"a,b"_s}, "c"}, {"a,b,w\\", {u"w"_s, u""_s, u"a"_s}, "b"},
        {"p , q ,r", {u"r"_s, u"p"_s}, " q"},     {"same,1,s", {u"s"_s, u"same"_s}, "1"},
        {"same,1,s", {u"s"_s, u"same"_s}, "1"},
    };
    QByteArray text;
    for (const Line& line : lines) {
        text += QByteArray(line.line) + '\n';
    }
    import(text);
    for (const Line& line : lines) {
        SCOPED_TRACE(line.line);
        const TreeNode* node = root();
        for (const QString& name : line.path) {
            const auto below = std::find_if(node->children.begin(), node->children.end(),
                                            [&](const auto& child) { return child->text == name; });
            ASSERT_NE(below, node->children.end()) << name.toStdString();
            node = below->get();
        }
        EXPECT_EQ(node->image, TreeImage::Product);
        EXPECT_EQ(window->session().objects.Product(node->key.mid(2))->Description, QLatin1String(line.description));
    }
    // Tea existed before; equal lines make two products in one category.
    EXPECT_EQ(root()->children.size(), 7U);
    const TreeNode* same = root()->children.back().get();
    ASSERT_EQ(same->children.size(), 2U);
    EXPECT_NE(same->children[0]->key, same->children[1]->key);
}

TEST_F(Import, ShowsItsProgressAfterOneSecond)
{
    auto import = std::make_unique<ImportIntoTree>(*window);
    const clsImporter::Progress progress = import->progress();
    progress(1, 4);
    EXPECT_FALSE(isShown("ImportProgressFrame"));
    QTest::qWait(1010);
    progress(3, 4);
    EXPECT_TRUE(isShown("ImportProgressFrame"));
    EXPECT_EQ(find<QProgressBar>("ImportProgressBar")->value(), 75);
    import.reset();
    EXPECT_FALSE(isShown("ImportProgressFrame"));
}

TEST_F(Import, OfManyLinesFillsTheTreeInOneGo)
{
    QByteArray lines;
    for (int product = 0; product < 20000; ++product) {
        const QByteArray group = QByteArray::number(product % 10);
        lines += "Product " + QByteArray::number(product) + ",text,Group " + group + "\\Shelf " +
                 QByteArray::number(product / 10 % 10) + "\n";
    }
    import(lines);
    EXPECT_EQ(root()->children.size(), 11U);
    EXPECT_EQ(window->session().shop->GetProductCount(), 20000);
    EXPECT_EQ(root()->children[1]->children[0]->children.size(), 200U);
}

} // namespace
