#include "pages/RenderPage.h"

#include "pages/PagesTest.h"

using namespace Qt::StringLiterals;

namespace {

using RenderPageTest = PagesTest;

TEST_F(RenderPageTest, ACustomPageHasItsTextUnchangedAndNothingElse)
{
    const QString text = u"<p>Über uns: <!--:shop_name:--> & mehr</p>\r\n"_s;
    const auto page = addCustomPage(u"About"_s, text);
    EXPECT_EQ(dumpOf(u"custompage"_s, page), u"page_text = "_s + text + u'\n');
    addTemplate(u"custompage"_s, u"<!--:page_text:-->|<!--:shop_currency:-->|<!--:server:-->"_s);
    EXPECT_EQ(RenderPage(context, u"custompage"_s, page), text + u"|EUR|http://previewmode/"_s);
}

TEST_F(RenderPageTest, ACustomPageNeedsItsObject)
{
    EXPECT_EQ(errorOf([&] { variablesOf(u"custompage"_s); }), 91);
    EXPECT_EQ(errorOf([&] { variablesOf(u"custompage"_s, session.shop); }), 13);
}

TEST_F(RenderPageTest, ANameThatIsNoPageHasTheTwoVariablesOfAllPages)
{
    for (const QString& name : {u"Main"_s, u"CATEGORY"_s, u"layout"_s, u""_s, u"main "_s}) {
        EXPECT_EQ(dumpOf(name, session.shop), QString()) << name.toStdString();
    }
    addTemplate(u"own"_s, u"[<!--:server:-->][<!--:shop_name=none:-->]"_s);
    EXPECT_EQ(RenderPage(context, u"own"_s, {}), u"[http://previewmode/][none]"_s);
}

TEST_F(RenderPageTest, ThePageIsFilledByTheExactNameButTheTemplateIsFoundInAnyCase)
{
    addTemplate(u"main"_s, u"<!--:shop_name=nothing:-->"_s);
    EXPECT_EQ(RenderPage(context, u"main"_s, session.shop), u"Corner Shop"_s);
    EXPECT_EQ(RenderPage(context, u"MAIN"_s, session.shop), u"nothing"_s);
}

TEST_F(RenderPageTest, AnAbsentTemplateFailsThePage)
{
    EXPECT_EQ(errorOf([&] { RenderPage(context, u"main"_s, session.shop); }), 5);
}

TEST_F(RenderPageTest, ATemplateThatUsesAListAsATextFailsThePage)
{
    addTemplate(u"main"_s, u"<!--:categories:-->"_s);
    EXPECT_EQ(errorOf([&] { RenderPage(context, u"main"_s, session.shop); }), 13);
}

} // namespace
