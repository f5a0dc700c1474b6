#include "pages/preview/PreviewPage.h"

#include "pages/PagesTest.h"

using namespace Qt::StringLiterals;

namespace {

// Keeps what it is told, and refuses the first documents when a test wants that.
class RefusingSurface : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        calls << u"replace"_s;
        document = text;
        return calls.count(u"replace"_s) > refusals;
    }
    void goBlank() override { calls << u"blank"_s; }

    int refusals = 0;
    QStringList calls;
    QString document;
};

class PreviewPageTest : public PagesTest
{
protected:
    void addTemplates()
    {
        for (const QString& name : {u"menu"_s, u"footer"_s, u"header"_s, u"checkout"_s, u"cart"_s}) {
            addTemplate(name, u"<%1>"_s.arg(name));
        }
        addTemplate(u"main"_s, u"<main <!--:shop_name:-->>"_s);
        setLayout(u"<!--:header:--><!--:main_part:--><!--:menu:--><!--:footer:--><!--:checkout:-->"_s);
    }
    CSSClass& addStyle(const QString& name)
    {
        auto style = std::make_shared<CSSClass>();
        style->CSSName = name;
        shop().CSSs.Add(style, u"ID"_s + name);
        return *style;
    }

    RefusingSurface surface;
    PreviewPage preview{session, templates, surface};
};

TEST_F(PreviewPageTest, ThePiecesStandAroundThePageAndALineEndBehindAll)
{
    addTemplates();
    preview.ShowPreviewPage(u"main"_s, session.shop);
    EXPECT_EQ(surface.document, u"<header><main Corner Shop><menu><footer><checkout>\r\n"_s);
    EXPECT_EQ(surface.calls, QStringList{u"replace"_s});
}

TEST_F(PreviewPageTest, TheFrameHasSixVariablesAndNoServer)
{
    addTemplates();
    setLayout(u"<!--:server=no:--> <!--:shop_name=no:--> <!--:shop_currency=no:-->"
              "<!--:if:main_part=<cart>:--> 1<!--:end:main_part:--><!--:if:menu=<menu>:--> 2<!--:end:menu:-->"
              "<!--:if:footer=<footer>:--> 3<!--:end:footer:--><!--:if:header=<header>:--> 4<!--:end:header:-->"
              "<!--:if:checkout=<checkout>:--> 5<!--:end:checkout:--><!--:cycle:csss:-->x<!--:end:csss:-->"_s);
    preview.ShowPreviewPage(u"cart"_s, {});
    EXPECT_EQ(surface.document, u"no no no 1 2 3 4 5\r\n"_s);
}

TEST_F(PreviewPageTest, EveryStyleIsARowInTheOrderOfTheCollection)
{
    addTemplates();
    addStyle(u"Zebra"_s);
    addStyle(u"Ant"_s);
    setLayout(u"<!--:cycle:csss:--><!--:css:-->\n<!--:end:csss:-->"_s);
    preview.ShowPreviewPage(u"main"_s, session.shop);
    EXPECT_EQ(surface.document, u".Zebra{background-color : 255;color : 0;font :    ;}\n"
                                ".Ant{background-color : 255;color : 0;font :    ;}\n\r\n"_s);
}

TEST_F(PreviewPageTest, AShopWithoutStylesHasAnEmptyList)
{
    addTemplates();
    setLayout(u"[<!--:cycle:csss:-->x<!--:end:csss:-->]"_s);
    preview.ShowPreviewPage(u"main"_s, session.shop);
    EXPECT_EQ(surface.document, u"[]\r\n"_s);
}

TEST_F(PreviewPageTest, ADefectInTheCheckoutFailsEveryPageAndLeavesTheDocument)
{
    addTemplates();
    preview.ShowPreviewPage(u"main"_s, session.shop);
    const QString before = surface.document;
    templates.templates.Remove(u"checkout"_s);
    for (const QString& name : {u"main"_s, u"cart"_s}) {
        EXPECT_EQ(errorOf([&] { preview.ShowPreviewPage(name, session.shop); }), 5);
    }
    EXPECT_EQ(surface.document, before);
    EXPECT_EQ(surface.calls.size(), 1);
}

TEST_F(PreviewPageTest, WithoutAFrameNothingIsShown)
{
    addTemplates();
    templates.layout_template.reset();
    EXPECT_EQ(errorOf([&] { preview.ShowPreviewPage(u"main"_s, session.shop); }), 91);
    EXPECT_TRUE(surface.calls.isEmpty());
}

TEST_F(PreviewPageTest, ThePageAndItsObjectAreRememberedAlsoWhenItFails)
{
    addTemplates();
    EXPECT_EQ(preview.lastPageName(), QString());
    preview.ShowPreviewPage(u"main"_s, session.shop);
    EXPECT_EQ(preview.lastPageName(), u"main"_s);
    EXPECT_EQ(std::get<std::shared_ptr<ShopClass>>(preview.lastPageObject()), session.shop);
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    EXPECT_EQ(errorOf([&] { preview.ShowPreviewPage(u"category"_s, tea); }), 5);
    EXPECT_EQ(preview.lastPageName(), u"category"_s);
    EXPECT_EQ(std::get<std::shared_ptr<CategoryClass>>(preview.lastPageObject()), tea);
}

TEST_F(PreviewPageTest, TheObjectOfTheLastPageIsKeptAlive)
{
    addTemplates();
    addTemplate(u"category"_s, u"x"_s);
    auto tea = addCategory(u"2"_s, u"Tea"_s);
    preview.ShowPreviewPage(u"category"_s, tea);
    const std::weak_ptr<CategoryClass> watched = tea;
    shop().categories.Remove(1);
    session.objects.Remove(u"ID2"_s);
    tea.reset();
    EXPECT_FALSE(watched.expired());
}

TEST_F(PreviewPageTest, WhileThereIsNoDocumentTheBrowserGoesBlankAndTheTextIsWrittenAgain)
{
    addTemplates();
    surface.refusals = 3;
    preview.ShowPreviewPage(u"main"_s, session.shop);
    EXPECT_EQ(surface.calls.join(u' '), u"replace blank replace blank replace blank replace"_s);
    EXPECT_TRUE(surface.document.contains(u"Corner Shop"_s));
}

} // namespace
