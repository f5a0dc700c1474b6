#include "design/CSSClass.h"

#include "DesignFixture.h"

using namespace Qt::StringLiterals;

namespace {

using Styles = DesignFixture;

TEST_F(Styles, ANewStyleHasTwoDecimalColoursAndNothingElse)
{
    const CSSClass style;
    EXPECT_EQ(style.ForeGroundColor, u"0"_s);
    EXPECT_EQ(style.BackGroundColor, u"255"_s);
    for (const QString& text : {style.CSSName, style.FontName, style.FontSize, style.IsBold, style.IsCursive,
                                style.IsUndcelined, style.IsLineThrugh}) {
        EXPECT_EQ(text, QString());
    }
}

TEST_F(Styles, AnElementWithoutChildrenGivesTheDefaults)
{
    CSSClass style;
    style.FromXML(element("<CSS/>"));
    EXPECT_EQ(written(style, "CSS"),
              "<CSS><CSSName>UNDEFINED_CSS_NAME</CSSName><ForeGroundColor>#000000</ForeGroundColor>"
              "<BackGroundColor>#FFFFFF</BackGroundColor><FontName>Arial</FontName><FontSize>10pt</FontSize>"
              "<IsBold>No</IsBold><IsCursive>No</IsCursive><IsUnderlined>No</IsUnderlined>"
              "<IsLineThrugh>No</IsLineThrugh></CSS>");
}

TEST_F(Styles, EveryMemberHasItsElement)
{
    CSSClass style;
    style.CSSName = u"a"_s;
    style.ForeGroundColor = u"b"_s;
    style.BackGroundColor = u"c"_s;
    style.FontName = u"d"_s;
    style.FontSize = u"e"_s;
    style.IsBold = u"f"_s;
    style.IsCursive = u"g"_s;
    style.IsUndcelined = u"h"_s;
    style.IsLineThrugh = u"i"_s;
    const QByteArray xml = written(style, "CSS");
    EXPECT_EQ(xml, "<CSS><CSSName>a</CSSName><ForeGroundColor>b</ForeGroundColor><BackGroundColor>c</BackGroundColor>"
                   "<FontName>d</FontName><FontSize>e</FontSize><IsBold>f</IsBold><IsCursive>g</IsCursive>"
                   "<IsUnderlined>h</IsUnderlined><IsLineThrugh>i</IsLineThrugh></CSS>");
    CSSClass read;
    read.FromXML(element(xml));
    EXPECT_EQ(written(read, "CSS"), xml);
}

TEST_F(Styles, AStyleMadeInASessionIsWrittenWithItsDecimalColours)
{
    CSSClass style;
    style.CSSName = u"copyright"_s;
    EXPECT_EQ(written(style, "CSS"),
              "<CSS><CSSName>copyright</CSSName><ForeGroundColor>0</ForeGroundColor>"
              "<BackGroundColor>255</BackGroundColor><FontName></FontName><FontSize></FontSize><IsBold></IsBold>"
              "<IsCursive></IsCursive><IsUnderlined></IsUnderlined><IsLineThrugh></IsLineThrugh></CSS>");
}

} // namespace
