#include "template_engine/Template_Element.h"

#include "support/TestSupport.h"
#include "template_engine/TemplateParser.h"

using namespace Qt::StringLiterals;

TEST(Template_Element, ANewElementIsEmpty)
{
    const Template_Element element;
    EXPECT_EQ(element.Value, u""_s);
    EXPECT_EQ(element.TType, 0);
    EXPECT_EQ(element.Default, u""_s);
    EXPECT_EQ(upperBound(element.Template_Parts), -1);
}

TEST(Template_Element, ReDimSubElementsSetsTheUpperBoundAndEmptiesAllSlots)
{
    Template_Element element;
    element.ReDimSubElements(2);
    ASSERT_EQ(upperBound(element.Template_Parts), 2);
    element.Template_Parts[0] = std::make_shared<Template_Element>();
    element.ReDimSubElements(1);
    ASSERT_EQ(upperBound(element.Template_Parts), 1);
    EXPECT_EQ(element.Template_Parts[0], nullptr);
    element.ReDimSubElements(0);
    EXPECT_EQ(upperBound(element.Template_Parts), 0);
    EXPECT_EQ(errorOf([&] { element.ReDimSubElements(-1); }), 9);
}

TEST(Template_Element, AddPartsTakesAllButTheSpareSlotByReference)
{
    const ElementArray parts = parse_text(u"a<!--:x:-->");
    Template_Element element;
    element.ReDimSubElements(upperBound(parts));
    element.addParts(parts);
    EXPECT_EQ(element.Template_Parts, parts);
    parts[0]->Value = u"changed"_s;
    EXPECT_EQ(element.Template_Parts[0]->Value, u"changed"_s);
}

TEST(Template_Element, AddPartsNeedsRoom)
{
    const ElementArray parts = parse_text(u"a<!--:x:-->b<!--:y:-->");
    Template_Element element;
    EXPECT_EQ(errorOf([&] { element.addParts(parts); }), 9);
    element.ReDimSubElements(2);
    EXPECT_EQ(errorOf([&] { element.addParts(parts); }), 9);
    element.ReDimSubElements(3);
    EXPECT_EQ(errorOf([&] { element.addParts(parts); }), 0);
    EXPECT_EQ(errorOf([&] { Template_Element().addParts(ElementArray()); }), 0);
}

TEST(Template_Element, TheDumpEndsEachLineByACarriageReturnAndIndentsTheBodyByThree)
{
    const ElementArray elements =
        parse_text(u"<!--:if:x=1:-->text<!--:cycle:rows:--><!--:html:y=-:--><!--:end:rows:--><!--:end:x:-->");
    EXPECT_EQ(elements[0]->to_string(), u"Value = x\rType = 6\rDefault = 1\r"
                                        "   Value = text\r   Type = 1\r   Default = \r"
                                        "   Value = rows\r   Type = 8\r   Default = \r"
                                        "      Value = y\r      Type = 3\r      Default = -\r"_s);
}

TEST(Template_Element, TheDumpBeginsAtTheIndentAskedFor)
{
    Template_Element element;
    element.Value = u"v"_s;
    EXPECT_EQ(element.to_string1(2), u"  Value = v\r  Type = 0\r  Default = \r"_s);
    EXPECT_EQ(element.to_string1(0), element.to_string());
}
