#include "base/XMLUtils.h"

#include "base/XmlFile.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

class XMLUtils : public testing::Test
{
protected:
    pugi::xml_node root(const QByteArray& bytes)
    {
        file.parse(bytes);
        return file.document().document_element();
    }

    XmlFile file;
};

} // namespace

TEST_F(XMLUtils, TheTextOfANodeIsAllTextBelowItAsItStands)
{
    struct Case
    {
        QByteArray xml;
        QString text;
    };
    const Case cases[] = {
        {"<a/>", u""_s},
        {"<a></a>", u""_s},
        {"<a>text</a>", u"text"_s},
        {"<a>  two  blanks  </a>", u"  two  blanks  "_s},
        {"<a>   </a>", u"   "_s},
        {"<a>\t\n</a>", u"\t\n"_s},
        {"<a>one\r\ntwo\rthree\n</a>", u"one\r\ntwo\rthree\n"_s},
        {"<a>&lt;b&gt; &amp; &quot;&apos;</a>", u"<b> & \"'"_s},
        {"<a>&#65;&#x42;&#13;&#10;&#9;&#x20AC;&#x1F600;</a>", u"AB\r\n\t\u20AC\U0001F600"_s},
        {"<a>&amp;amp;</a>", u"&amp;"_s},
        {"<a>M\xC3\xBCll</a>", u"M\u00FCll"_s},
        {"<a><![CDATA[<b> & ]] x]]></a>", u"<b> & ]] x"_s},
        {"<a>x<![CDATA[ y ]]>z</a>", u"x y z"_s},
        {"<a><![CDATA[]]></a>", u""_s},
        {"<a>x<!-- no text -->y<?nor this?>z</a>", u"xyz"_s},
        {"<a>one<b>two<c>three</c></b>four</a>", u"onetwothreefour"_s},
        {"<a><b>one</b>  <c>two</c></a>", u"onetwo"_s},
        {"<a>\n  <b>one</b>\n  <c> two </c>\n</a>", u"one two "_s},
        {"<a>\xEF\xBB\xBFx</a>", u"\uFEFFx"_s},
        {"<a>]] ></a>", u"]] >"_s},
    };
    for (const Case& one : cases) {
        const pugi::xml_node node = root(one.xml);
        EXPECT_TRUE(node) << one.xml.toStdString();
        EXPECT_EQ(nodeText(node), one.text) << one.xml.toStdString();
    }
    EXPECT_EQ(nodeText(pugi::xml_node()), u""_s);
}

TEST_F(XMLUtils, TheTextOfATextNodeIsItsOwn)
{
    const pugi::xml_node node = root("<a><b>x</b>tail</a>");
    EXPECT_EQ(nodeText(node.last_child()), u"tail"_s);
    EXPECT_EQ(nodeText(node.first_child()), u"x"_s);
}

TEST_F(XMLUtils, TheFirstDescendantIsFoundAtAnyDepthInDocumentOrder)
{
    const pugi::xml_node node = root("<a><b><d>deep</d></b><d>shallow</d><c>text<e/>tail</c></a>");
    EXPECT_EQ(nodeText(firstDescendant(node, "d")), u"deep"_s);
    EXPECT_EQ(firstDescendant(node, "e").parent().name(), std::string("c"));
    EXPECT_FALSE(firstDescendant(node, "x"));
    EXPECT_FALSE(firstDescendant(node, "D"));
    EXPECT_FALSE(firstDescendant(pugi::xml_node(), "a"));
}

TEST_F(XMLUtils, AnElementIsNoDescendantOfItselfNorAreItsNeighbours)
{
    const pugi::xml_node node = root("<a><b><c/></b><d/></a>");
    EXPECT_FALSE(firstDescendant(node, "a"));
    EXPECT_FALSE(firstDescendant(node.child("b"), "d"));
    EXPECT_FALSE(firstDescendant(node.child("d"), "b"));
}

TEST_F(XMLUtils, NodesFollowEachOtherInDocumentOrder)
{
    const pugi::xml_node node = root("<a><b><c/></b><d>x<e/></d><f/></a>");
    QByteArray names;
    for (pugi::xml_node at = nextNode(node, node); at; at = nextNode(at, node)) {
        names += at.name();
    }
    EXPECT_EQ(names, "bcdef");
    names.clear();
    const pugi::xml_node top = node.child("b");
    for (pugi::xml_node at = nextNode(top, top); at; at = nextNode(at, top)) {
        names += at.name();
    }
    EXPECT_EQ(names, "c");
}

TEST_F(XMLUtils, ANodesTextOrTheDefault)
{
    const pugi::xml_node node =
        root("<a><b><Name>deep</Name></b><Name>shallow</Name><Empty/><Group><x>1</x>2</Group></a>");
    EXPECT_EQ(GetNodeText(node, "Name", u"default"_s), u"deep"_s);
    EXPECT_EQ(GetNodeText(node, "Empty", u"default"_s), u""_s);
    EXPECT_EQ(GetNodeText(node, "Group", u"default"_s), u"12"_s);
    EXPECT_EQ(GetNodeText(node, "Missing", u"default"_s), u"default"_s);
    EXPECT_EQ(GetNodeText(node, "Missing", QString()), QString());
}

TEST_F(XMLUtils, AnElementIsAppendedWithItsText)
{
    pugi::xml_document document;
    pugi::xml_node shop = AddChildElement(document, "Shop", u"HUERAGA"_s);
    const pugi::xml_node name = AddChildElement(shop, "Name", u"Fish & \u20AC"_s);
    AddChildElement(shop, "Code", u"<7>"_s);
    EXPECT_EQ(name.name(), std::string("Name"));
    EXPECT_EQ(name.parent(), shop);
    EXPECT_EQ(xmlToBytes(document), "<Shop><Name>Fish &amp; \xE2\x82\xAC</Name><Code>&lt;7&gt;</Code></Shop>");
}

TEST_F(XMLUtils, TheMarkerMakesAnElementWithoutTextAndOnlyTheExactOne)
{
    pugi::xml_document document;
    pugi::xml_node shop = AddChildElement(document, "Shop", u"HUERAGA"_s);
    EXPECT_FALSE(shop.first_child());
    EXPECT_FALSE(AddChildElement(shop, "a", u"HUERAGA"_s).first_child());
    EXPECT_EQ(nodeText(AddChildElement(shop, "b", u"hueraga"_s)), u"hueraga"_s);
    EXPECT_EQ(nodeText(AddChildElement(shop, "c", u"HUERAGA "_s)), u"HUERAGA "_s);
    EXPECT_EQ(nodeText(AddChildElement(shop, "d", u""_s)), u""_s);
    EXPECT_TRUE(shop.child("d").first_child()) << "an empty value is an empty text";
    EXPECT_EQ(xmlToBytes(document), "<Shop><a/><b>hueraga</b><c>HUERAGA </c><d></d></Shop>");
}

TEST_F(XMLUtils, CharactersThatXmlCannotHoldAreLeftOut)
{
    QString text = u"a"_s;
    for (char16_t unit = 0; unit < 0x20; ++unit) {
        text += QChar(unit);
    }
    text += u"b\uFFFE\uFFFFc"_s;
    text += QChar(0xD800);
    text += u"d"_s;
    text += QChar(0xDC00);
    text += u"\U0001F600\u0085\uFFFDe"_s;
    text += QChar(0xDBFF);
    pugi::xml_document document;
    const pugi::xml_node node = AddChildElement(document, "a", text);
    const QString kept = u"a\t\n\rbcd\U0001F600\u0085\uFFFDe"_s;
    EXPECT_EQ(nodeText(node), kept);
    EXPECT_EQ(nodeText(root(xmlToBytes(document))), kept);
}

TEST_F(XMLUtils, AZeroCharacterDoesNotCutTheTextOff)
{
    pugi::xml_document document;
    AddChildElement(document, "a", QString(u"before"_s + QChar(0) + u"after"_s));
    EXPECT_EQ(xmlToBytes(document), "<a>beforeafter</a>");
}

TEST_F(XMLUtils, TextsOfAnyLengthAreWritten)
{
    for (const qsizetype length : {1, 127, 128, 129, 5000, 100000}) {
        for (const QString& letter : {u"x"_s, u"\u00FC"_s, u"<"_s}) {
            pugi::xml_document document;
            const QString text = letter.repeated(length);
            EXPECT_EQ(nodeText(AddChildElement(document, "a", text)), text);
            EXPECT_EQ(nodeText(root(xmlToBytes(document))), text);
        }
    }
}

TEST_F(XMLUtils, AKeyIsInACollectionOrNot)
{
    KeyedCollection<QString> collection;
    collection.Add(u"x"_s, u"Key"_s);
    EXPECT_TRUE(CollectionHasKey(collection, u"kEY"_s));
    EXPECT_FALSE(CollectionHasKey(collection, u"other"_s));
    EXPECT_FALSE(CollectionHasKey(KeyedCollection<QString>(), u"Key"_s));
}

TEST(Colours, AHexTextIsANumberWithRedInTheLowByte)
{
    struct Case
    {
        QString text;
        int colour;
    };
    const Case cases[] = {{u"#000000"_s, 0},           {u"#FF0000"_s, 255},         {u"#00FF00"_s, 0xFF00},
                          {u"#0000FF"_s, 0xFF0000},    {u"#123456"_s, 0x563412},    {u"abcdef"_s, 0xEFCDAB},
                          {u"##12#34#56"_s, 0x563412}, {u"#123456789"_s, 0x563412}, {u"#FFFFFF"_s, 0xFFFFFF}};
    for (const Case& one : cases) {
        EXPECT_EQ(ColorFromHex(one.text), one.colour) << one.text.toStdString();
    }
}

TEST(Colours, ATextWithoutThreePairsOfHexDigitsIsATypeMismatch)
{
    for (const QString& text :
         {u""_s, u"#"_s, u"#12345"_s, u"#FFF"_s, u"#12345G"_s, u"red"_s, u"#12 456"_s, u"#-12345"_s, u"######"_s}) {
        EXPECT_EQ(errorOf([&] { ColorFromHex(text); }), 13) << text.toStdString();
    }
}

TEST(Colours, ANumberIsWrittenAsRedGreenAndBlue)
{
    struct Case
    {
        int colour;
        QString text;
    };
    const Case cases[] = {{0, u"#000000"_s},        {255, u"#FF0000"_s},      {0xFF00, u"#00FF00"_s},
                          {0xFF0000, u"#0000FF"_s}, {0x563412, u"#123456"_s}, {0x0A0B0C, u"#0C0B0A"_s},
                          {0xFFFFFF, u"#FFFFFF"_s}};
    for (const Case& one : cases) {
        int colour = one.colour;
        EXPECT_EQ(ColorToHex(colour), one.text);
        EXPECT_EQ(ColorFromHex(one.text), one.colour);
    }
}

TEST(Colours, WritingConsumesTheNumber)
{
    int colour = 0x563412;
    ColorToHex(colour);
    EXPECT_EQ(colour, 0x56);
}
