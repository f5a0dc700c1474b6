// The start of the program, seen from its log, its boxes and its window.
#include "editors/Panel.h"
#include "shell/CatalogueTree.h"
#include "shell/ProgressFrames.h"
#include "support/WindowTest.h"

#include <QDir>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace {

const QByteArray smallShop = "<Version>1.2.0</Version><Name>Fern</Name><SelectedCountries/>"
                             "<Category><Id>2</Id><Name>Tea</Name></Category>"
                             "<Category><Id>3</Id><Name>Cups</Name></Category>";

const QString noShopText = u"Error in the configuration XML file. No 'Shop' node."_s;

class StartUp : public WindowTest
{
};

TEST_F(StartUp, LogsItsStepsInOrder)
{
    useSampleShop();
    start();
    const QStringList lines = logLines();
    QStringList steps;
    for (const QString& line : lines) {
        if (!line.startsWith(u"UserControl ")) {
            steps << line;
        }
    }
    // The model's own lines stand between "Start shop creating" and the building of the tree.
    const QStringList before = {u"Start Function LoadCountries"_s, u"Countries loaded"_s,
                                u"User Controls Initialized"_s, u"Start shop creating"_s};
    const QStringList after = {u"Start AddShopToTheTree"_s, u"-----End AddShopToTheTree-----"_s,
                               u"End Sub CreateShop"_s,     u"Start parseTemplates"_s,
                               u"End parseTemplates"_s,     u"End Sub SetMode"_s,
                               u"MainForm loaded"_s,        u"MainForm shown"_s};
    ASSERT_GE(steps.size(), before.size() + after.size());
    EXPECT_EQ(steps.mid(0, before.size()), before);
    EXPECT_EQ(steps.mid(steps.size() - after.size()), after);
}

TEST_F(StartUp, LogsEveryButtonWhileTheWindowIsMade)
{
    useSampleShop();
    start();
    const QStringList lines = logLines();
    const qsizetype first = lines.indexOf(u"Countries loaded"_s) + 1;
    const qsizetype last = lines.indexOf(u"User Controls Initialized"_s);
    ASSERT_EQ(last - first, 30);
    EXPECT_EQ(lines[first], u"UserControl Save The Shop loaded"_s);
    for (qsizetype line = first; line < last; ++line) {
        EXPECT_TRUE(lines[line].startsWith(u"UserControl ") && lines[line].endsWith(u" loaded"));
    }
}

TEST_F(StartUp, KeepsTheLogOfTheLastStartOnly)
{
    useShop(smallShop);
    start();
    window.reset();
    const QStringList first = logLines();
    start();
    EXPECT_EQ(logLines(), first);
    EXPECT_EQ(logLines().count(u"MainForm shown"_s), 1);
}

TEST_F(StartUp, WithAnEmptyListOfCountriesIsNormal)
{
    useShop(smallShop);
    writeFile(files.path(u"countries.txt"_s), "");
    start();
    EXPECT_EQ(window->session().CountriesCollection.Count(), 0);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(StartUp, WithoutCountriesFailsBeforeAnyWindow)
{
    useShop(smallShop);
    QFile::remove(files.path(u"countries.txt"_s));
    EXPECT_EQ(errorOf([&] { start(); }), 53);
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(logLines(), QStringList{u"Start Function LoadCountries"_s});
}

TEST_F(StartUp, WithACountryTwiceFailsBeforeAnyWindow)
{
    useShop(smallShop);
    writeFile(files.path(u"countries.txt"_s), "Norway\r\nChad\r\nnorway\r\n");
    EXPECT_EQ(errorOf([&] { start(); }), 457);
    EXPECT_EQ(window, nullptr);
}

TEST_F(StartUp, WithALogThatCannotBeWrittenFails)
{
    useShop(smallShop);
    ASSERT_TRUE(QDir(files.folder().path()).mkdir(u"load.log"_s));
    EXPECT_EQ(errorOf([&] { start(); }), 75);
    EXPECT_EQ(window, nullptr);
}

TEST_F(StartUp, WithoutAShopFileShowsOneBoxAndAnEmptyWindow)
{
    useSampleShop();
    QFile::remove(files.path(u"shop.xml"_s));
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, noShopText);
    start();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->parts().CategoriesAndProductsTree->nodes().rootNode(), nullptr);
    EXPECT_EQ(window->VisibleFrame, nullptr);
    EXPECT_FALSE(window->session().objects.isCreated());
    ASSERT_NE(window->session().shop, nullptr);
    EXPECT_EQ(window->session().shop->name, QString());
    EXPECT_EQ(window->CurrentTemplatesSet().templates.Count(), 10);
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
}

class StartUpOnBadShopFile : public WindowTest, public testing::WithParamInterface<const char*>
{
};

TEST_P(StartUpOnBadShopFile, ShowsTheSameBoxAndGoesOn)
{
    useShop(smallShop);
    writeFile(files.path(u"shop.xml"_s), GetParam());
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, noShopText);
    start();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->session().shop->name, QString());
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), QByteArray(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, StartUpOnBadShopFile,
                         testing::Values("", "no markup at all", "<Tarnwick></Tarnwick>",
                                         "<Tarnwick><shop><Name>case counts</Name></shop></Tarnwick>",
                                         "<Tarnwick><Shop><Name>unclosed</Shop></Tarnwick>",
                                         "<Tarnwick><Shop><Name>a</Name></Shop>",
                                         "<Tarnwick><Shop><Name>a & b</Name></Shop></Tarnwick>",
                                         "<Tarnwick><Shop><Name>&unknown;</Name></Shop></Tarnwick>",
                                         "<Tarnwick><Shop/></Tarnwick><Tarnwick/>",
                                         "text<Tarnwick><Shop/></Tarnwick>"));

TEST_F(StartUp, ShowsTheShopAndItsRootCategoriesInTheTree)
{
    useShop(smallShop);
    start();
    const TreeNode* root = window->parts().CategoriesAndProductsTree->nodes().rootNode();
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->key, u"ID_SHOP"_s);
    EXPECT_EQ(root->text, u"Fern"_s);
    ASSERT_EQ(root->children.size(), 2U);
    EXPECT_EQ(root->children[0]->key, u"ID2"_s);
    EXPECT_EQ(root->children[0]->text, u"Tea"_s);
    EXPECT_EQ(root->children[1]->text, u"Cups"_s);
    EXPECT_EQ(root, window->SelectedNode);
}

TEST_F(StartUp, EndsInTheCatalogueWithTheShopsGeneralPanel)
{
    useShop(smallShop);
    start();
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
    ASSERT_NE(window->VisibleFrame, nullptr);
    EXPECT_EQ(window->VisibleFrame->objectName(), u"ShopGeneralPnl"_s);
    EXPECT_TRUE(isShown("ShopGeneralPnl"));
    EXPECT_EQ(window->CurrentToolbar, find("ShopToolbar"));
    EXPECT_EQ(window->windowTitle(), u"Ambrel eCommerce Software"_s);
    EXPECT_TRUE(std::holds_alternative<std::shared_ptr<ShopClass>>(window->ActiveObject));
    EXPECT_EQ(preview->blanks, 1);
}

TEST_F(StartUp, RewritesAFileOfAnotherVersionBeforeTheWindow)
{
    useShop("<Version>1.1.9</Version><Name>Fern</Name><SelectedCountries/>");
    start();
    const QStringList lines = logLines();
    const qsizetype mismatch = lines.indexOf(u"Version not mutched"_s);
    ASSERT_GE(mismatch, 0);
    EXPECT_LT(mismatch, lines.indexOf(u"MainForm shown"_s));
    const QByteArray saved = fileBytes(files.path(u"shop.xml"_s));
    EXPECT_TRUE(saved.startsWith("<Tarnwick><Shop><Version>1.2.0</Version>")) << saved.left(80).toStdString();
    EXPECT_TRUE(find("SaveProgressFrame")->isHidden());
    EXPECT_EQ(find<QProgressBar>("SaveProgressBar")->value(), 100); // it ran, though nobody could see it
}

TEST_F(StartUp, LeavesAFileOfItsOwnVersionAlone)
{
    useShop(smallShop);
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    start();
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
}

TEST_F(StartUp, WithABrokenTemplateGoesOnWithTheTemplatesBeforeIt)
{
    useSampleShop();
    writeFile(files.path(u"templates/menu.html"_s), "<!--:if:x=1:-->");
    start();
    EXPECT_FALSE(logLines().contains(u"End parseTemplates"_s));
    EXPECT_TRUE(window->CurrentTemplatesSet().templates.hasKey(u"footer"_s));
    EXPECT_FALSE(window->CurrentTemplatesSet().templates.hasKey(u"menu"_s));
    EXPECT_FALSE(window->CurrentTemplatesSet().templates.hasKey(u"category"_s));
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
}

} // namespace
