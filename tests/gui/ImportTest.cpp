// Importing products from the window's menu.
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/clsImporter.h"
#include "shell/CatalogueTree.h"
#include "support/WindowTest.h"

#include <QElapsedTimer>

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
        WriteFile(files.path(u"products.txt"_s), lines);
        prompts.answerFile(files.path(u"products.txt"_s));
        trigger("mnuImport");
    }

    const TreeNode* root() const { return window->parts().CategoriesAndProductsTree->nodes().rootNode(); }
};

TEST_F(Import, StartsTheChoiceInTheApplicationFolderAndEndsOnCancel)
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

TEST_F(Import, TellsAShortLineInABoxAndKeepsWhatCameBefore)
{
    prompts.answerFile(files.path(u"products.txt"_s));
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, RuntimeError(ErrorNumber::SubscriptOutOfRange).description(),
                          PromptIcon::Warning);
    WriteFile(files.path(u"products.txt"_s), "Sencha,fine,Tea\nshort,line\nLost,line,Tea\n");
    trigger("mnuImport");
    EXPECT_EQ(root()->children[0]->children.size(), 1U);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(Import, TellsAFileThatCannotBeOpenedInABox)
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
