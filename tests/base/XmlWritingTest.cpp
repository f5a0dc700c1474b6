// The bytes that a document is written as, and that they read as the same document again.
#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "support/TestSupport.h"

#include <random>

using namespace Qt::StringLiterals;

TEST(XmlWriting, WrittenBytesHaveNoDeclarationAndNoWhiteSpaceOfTheirOwn)
{
    pugi::xml_document document;
    AddChildElement(AddChildElement(document, "Tarnwick", u"HUERAGA"_s), "Shop", u"\u00FC"_s);
    EXPECT_EQ(xmlToBytes(document), "<Tarnwick><Shop>\xC3\xBC</Shop></Tarnwick>");
    EXPECT_EQ(xmlToBytes(pugi::xml_document()), QByteArray());
}

TEST(XmlWriting, ACarriageReturnIsWrittenAsAReference)
{
    pugi::xml_document document;
    AddChildElement(document, "a", u"one\r\ntwo\r"_s);
    EXPECT_EQ(xmlToBytes(document), "<a>one&#13;\ntwo&#13;</a>");
    XmlFile section;
    section.parse("<a>x<![CDATA[<\r\n]]>y</a>");
    EXPECT_EQ(xmlToBytes(section.document()), "<a>x&lt;&#13;\ny</a>");
}

TEST(XmlWriting, EveryTextSurvivesARoundTrip)
{
    const QString pieces[] = {u" "_s,          u"\t"_s,     u"\r"_s,     u"\n"_s,     u"\r\n"_s,   u"<"_s,
                              u">"_s,          u"&"_s,      u"]]>"_s,    u"\""_s,     u"'"_s,      u"&amp;"_s,
                              u"&#13;"_s,      u"<!--"_s,   u"a"_s,      u"xyz"_s,    u"\u00FC"_s, u"\u20AC"_s,
                              u"\U0001F600"_s, u"\uFEFF"_s, u"\u0085"_s, u"\u2028"_s, u"\u00A0"_s, u"\u007F"_s,
                              u"<![CDATA["_s,  u"12,50"_s,  u"\u0436"_s};
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same texts every time
    pugi::xml_document document;
    pugi::xml_node root = AddChildElement(document, "root", u"HUERAGA"_s);
    QStringList texts;
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (std::size_t count = random() % 8; count > 0; --count) {
            text += pieces[random() % std::size(pieces)];
        }
        texts << text;
        AddChildElement(root, "t", text);
    }
    const QByteArray bytes = xmlToBytes(document);
    XmlFile file;
    file.parse(bytes);
    qsizetype at = 0;
    for (const pugi::xml_node& child : file.document().document_element().children()) {
        ASSERT_EQ(nodeText(child), texts.at(at++));
    }
    EXPECT_EQ(at, texts.size());
    // A text that is empty is written as an empty text and reads as none; all else is the same bytes again.
    EXPECT_EQ(xmlToBytes(file.document()), QByteArray(bytes).replace("<t></t>", "<t/>"));
}
