#include "design/CustomPageClass.h"

#include "DesignFixture.h"

using namespace Qt::StringLiterals;

namespace {

using CustomPages = DesignFixture;

TEST_F(CustomPages, AnElementWithoutChildrenGivesTheDefaults)
{
    CustomPageClass page;
    page.FromXML(element("<CustomPage/>"));
    EXPECT_EQ(page.pageName, u"UNDEFINED_PAGE_NAME"_s);
    EXPECT_EQ(page.ImageName, QString());
    EXPECT_EQ(page.ImageAligment, u"Left"_s);
    EXPECT_EQ(page.ContentText, QString());
}

TEST_F(CustomPages, ThePageIsWrittenInOrderAndReadBack)
{
    CustomPageClass page;
    page.pageName = u"About"_s;
    page.ImageName = u"a.png"_s;
    page.ImageAligment = u"Right"_s;
    page.ContentText = u"<b>We</b> & you\r\n"_s;
    const QByteArray xml = written(page, "CustomPage");
    EXPECT_EQ(xml, "<CustomPage><PageName>About</PageName><ImageName>a.png</ImageName>"
                   "<ImageAligment>Right</ImageAligment>"
                   "<ContentText>&lt;b&gt;We&lt;/b&gt; &amp; you&#13;\n</ContentText></CustomPage>");
    CustomPageClass read;
    read.FromXML(element(xml));
    EXPECT_EQ(read.pageName, page.pageName);
    EXPECT_EQ(read.ImageName, page.ImageName);
    EXPECT_EQ(read.ImageAligment, page.ImageAligment);
    EXPECT_EQ(read.ContentText, page.ContentText);
}

} // namespace
