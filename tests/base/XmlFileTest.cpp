#include "base/XmlFile.h"

#include "base/XMLUtils.h"
#include "support/TestSupport.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

bool isEmptyAfterParsing(const QByteArray& bytes)
{
    XmlFile file;
    file.parse(bytes);
    return !file.document().first_child();
}

QString rootText(const QByteArray& bytes)
{
    XmlFile file;
    file.parse(bytes);
    const pugi::xml_node root = file.document().document_element();
    return root ? nodeText(root) : u"no document"_s;
}

QByteArray utf16(const QString& text, bool bigEndian)
{
    QByteArray bytes;
    for (const QChar unit : u'\uFEFF' + text) {
        const auto high = static_cast<char>(unit.unicode() >> 8);
        const auto low = static_cast<char>(unit.unicode() & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(XmlFile, AWellFormedDocumentIsRead)
{
    const QByteArray documents[] = {
        "<a/>",
        "<a></a>",
        "<a>text</a>",
        " \r\n\t<a/> \n",
        "<?xml version=\"1.0\"?><a/>",
        "<?xml version='1.0' encoding='UTF-8'?>\r\n<a/>",
        "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\" ?><a/>",
        "\xEF\xBB\xBF<?xml version=\"1.0\"?><a/>",
        "\xEF\xBB\xBF<a/>",
        "<!-- before --><a/><!-- behind -->",
        "<?style sheet?><a/><?other?>",
        "<?xml-stylesheet href='x'?><a/>",
        "<!DOCTYPE a><a/>",
        "<?xml version=\"1.0\"?>\n<!DOCTYPE a SYSTEM \"a>b.dtd\"><!--x--><a/>",
        "<!DOCTYPE a PUBLIC \"-//X//Y\" 'z'><a/>",
        "<a b=\"1\" c='2'/>",
        "<a b = \"x > y\" c=\"&lt;&amp;&#13;'\" >t</a >",
        "<a b='\"'/>",
        "<a><b/><b /><b></b></a>",
        "<_a:b-c.d1/>",
        "<\xC3\xA4>x</\xC3\xA4>",
        "<a>x > y</a>",
        "<a>]]</a>",
        "<a>]</a>",
        "<a>&#x10FFFF;&#xE000;&#xFFFD;&#0000000000065;</a>",
        "<a><![CDATA[& < ]] > <!-- ]]></a>",
        "<a><![CDATA[]]]></a>",
        "<a><!-- & < ]]> - --></a>",
        "<a><?p & < ]]> ?\?></a>",
        "<a><a><a>&amp;</a></a></a>",
        "<averyveryverylongname><anotherverylongname/></averyveryverylongname>",
    };
    for (const QByteArray& document : documents) {
        EXPECT_FALSE(isEmptyAfterParsing(document)) << document.toStdString();
    }
}

TEST(XmlFile, ADocumentThatIsNotWellFormedIsAnEmptyOne)
{
    const QByteArray documents[] = {
        "",
        " \r\n ",
        "text",
        "\xEF\xBB\xBF",
        "<",
        "<a",
        "<a>",
        "<a b",
        "<a b=",
        "<a b='",
        "<a b='x'",
        "</a>",
        "<a></b>",
        "<a></A>",
        "<a></ab>",
        "<ab></a>",
        "<a><b></a></b>",
        "<a></a></a>",
        "<a></a",
        "<a></",
        "<a/",
        "<a/ >",
        "< a/>",
        "<1/>",
        "<-a/>",
        "<a></ a>",
        "<a></a b>",
        "<a></a b='x'>",
        // more than one thing at the top
        "<a/><b/>",
        "<a></a><a></a>",
        "<a/>text",
        "text<a/>",
        "<a/>&#32;",
        "&#32;<a/>",
        "<a/><![CDATA[x]]>",
        "<![CDATA[]]><a/>",
        "<a/>]]>",
        // references
        "<a>&</a>",
        "<a>a & b</a>",
        "<a>&amp</a>",
        "<a>&nbsp;</a>",
        "<a>&AMP;</a>",
        "<a>& amp;</a>",
        "<a>&#;</a>",
        "<a>&#x;</a>",
        "<a>&#12a;</a>",
        "<a>&#xG;</a>",
        "<a>&#X41;</a>",
        "<a>&#-1;</a>",
        "<a>&#0;</a>",
        "<a>&#x1F;</a>",
        "<a>&#11;</a>",
        "<a>&#xD800;</a>",
        "<a>&#xDFFF;</a>",
        "<a>&#xFFFE;</a>",
        "<a>&#xFFFF;</a>",
        "<a>&#x110000;</a>",
        "<a>&#99999999999999999999;</a>",
        "<a>&#x100000041;</a>",
        "<a>&#65</a>",
        "<a>&",
        "<a>&#",
        "<a>&#x4",
        // attributes
        "<a b=\"<\"/>",
        "<a b='x<y'>t</a>",
        "<a b='1' b='2'/>",
        "<a b='1' c='2' d='3' b='4'></a>",
        "<a b='&'/>",
        "<a b='&unknown;'/>",
        "<a b=1/>",
        "<a b/>",
        "<a b='1'c='2'/>",
        "<a b='1\"/>",
        "<a ='1'/>",
        "<a b='\x01'/>",
        "<a 1b='x'/>",
        // sections, comments, instructions, types
        "<a>]]></a>",
        "<a>x]]>y</a>",
        "<a>]]]></a>",
        "<a><![CDATA[x</a>",
        "<a><![CDATA[x]]</a>",
        "<a><![cdata[x]]></a>",
        "<a><!-- x</a>",
        "<a><!-- x -- y --></a>",
        "<a><!-- x ---></a>",
        "<a><!-></a>",
        "<a><!x></a>",
        "<a><?p</a>",
        "<a><?\?></a>",
        "<a><? p?></a>",
        "<a><?xml version='1.0'?></a>",
        "<a/><?xml version='1.0'?>",
        " <?xml version='1.0'?><a/>",
        "<!-- x --><?xml version='1.0'?><a/>",
        "<?XML version='1.0'?><a/>",
        "<?xml?><a/>",
        "<?xml ?><a/>",
        "<?xml encoding='UTF-8'?><a/>",
        "<?xml version='2.0'?><a/>",
        "<?xml version='1.0\"?><a/>",
        "<?xml version='1.0' standalone='maybe'?><a/>",
        "<?xml version='1.0' encoding='no-such-encoding'?><a/>",
        "<?xml version='1.0'",
        "<!DOCTYPE a>",
        "<a/><!DOCTYPE a>",
        "<a><!DOCTYPE a></a>",
        "<!DOCTYPE a><!DOCTYPE a><a/>",
        "<!DOCTYPE a",
        "<!DOCTYPE><a/>",
        "<!doctype a><a/>",
        "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>",
        // letters
        "<a>\x01</a>",
        "<a>\x0B</a>",
        "<a>some longer text \x1F here</a>",
        "<a>\xFF</a>",
        "<a>M\xFCll</a>",
        "<a>\xC0\xAF</a>",
        "<a>\xED\xA0\x80</a>",
        "<a>\xEF\xBF\xBE</a>",
        "<a>\xEF\xBF\xBF</a>",
        "<a>\xC3</a>",
        "<\xFF/>",
        "<a><!-- \x01 --></a>",
        "<a><!-- \xFF --></a>",
        "<a><![CDATA[\x01]]></a>",
        "<a><?p \x01?></a>",
        "<?xml version='1.0' encoding='US-ASCII'?><a>\xFC</a>",
        "<?xml version='1.0' encoding='UTF-16'?><a/>",
        QByteArray("<a>x\0y</a>", 10),
        QByteArray("<a>x</a>\0", 9),
        QByteArray("<a/>\0<b/>", 9),
        QByteArray("\0<a/>", 5),
        "\xFF\xFE<a/>",
        "\xFF\xFE",
        "\xFE\xFF<",
    };
    for (const QByteArray& document : documents) {
        EXPECT_TRUE(isEmptyAfterParsing(document)) << document.toStdString();
    }
}

TEST(XmlFile, ACutOffDocumentIsNeverWellFormed)
{
    const QByteArray whole =
        "<?xml version=\"1.0\"?><!--c--><Tarnwick a='1'><Shop><Name>A &amp; B \xE2\x82\xAC</Name><b/>"
        "<![CDATA[x]]><?p i?>]</Shop></Tarnwick>";
    ASSERT_FALSE(isEmptyAfterParsing(whole));
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_TRUE(isEmptyAfterParsing(whole.first(size))) << size;
    }
}

TEST(XmlFile, NoMutationOfADocumentIsMoreThanADocumentOrNone)
{
    const QByteArray seed =
        "<?xml version='1.0'?><!DOCTYPE T><T a='1' b=\"2\"><S><N>A &amp; B\xC3\xBC</N><b/><![CDATA[x]]>"
        "<?p i?><!-- c -->]&#65;</S></T>";
    const QByteArray pieces[] = {"<",   ">",    "&",  "]]>",  "<!--", "-->", "<![CDATA[", "'",  "\"",        "/",
                                 "<a>", "</a>", "?>", "\xC3", "=",    " ",   ";",         "<?", "<!DOCTYPE "};
    std::mt19937 random(3); // NOLINT(cert-msc51-cpp): the same documents every time
    const auto below = [&](qsizetype count) {
        return static_cast<qsizetype>(random() % static_cast<std::size_t>(count));
    };
    int read = 0;
    for (int i = 0; i < 10000; ++i) {
        QByteArray document = seed;
        for (qsizetype changes = below(3) + 1; changes > 0; --changes) {
            const qsizetype at = below(document.size());
            switch (below(3)) {
            case 0:
                document.remove(at, below(6) + 1);
                break;
            case 1:
                document.insert(at, pieces[below(std::size(pieces))]);
                break;
            default:
                document[at] = static_cast<char>(below(256));
            }
            document += document.isEmpty() ? " " : "";
        }
        XmlFile file;
        file.parse(document);
        if (file.document().first_child()) {
            ++read;
            // What was read is one element, and what is written of it reads as the same text.
            const pugi::xml_node root = file.document().first_child();
            ASSERT_EQ(root.type(), pugi::node_element) << document.toStdString();
            ASSERT_FALSE(root.next_sibling()) << document.toStdString();
            ASSERT_EQ(rootText(xmlToBytes(file.document())), nodeText(root)) << document.toStdString();
        }
    }
    EXPECT_GT(read, 100);
}

TEST(XmlFile, TheEncodingThatADocumentNamesIsHonoured)
{
    const QString text = u"<a>M\u00FCll</a>"_s;
    const QString german = u"M\u00FCll"_s;
    EXPECT_EQ(rootText("<a>M\xC3\xBCll</a>"), german);
    EXPECT_EQ(rootText("<?xml version='1.0' encoding='ISO-8859-1'?><a>M\xFCll</a>"), german);
    EXPECT_EQ(rootText("<?xml version='1.0' encoding='iso-8859-1'?><a>M\xFCll</a>"), german);
    EXPECT_EQ(rootText("<?xml version=\"1.0\" encoding=\"Windows-1252\"?><a>\x80</a>"), u"\u20AC"_s);
    EXPECT_EQ(rootText("<?xml version='1.0' encoding='US-ASCII'?><a>x</a>"), u"x"_s);
    EXPECT_EQ(rootText(utf16(text, false)), german);
    EXPECT_EQ(rootText(utf16(text, true)), german);
    EXPECT_EQ(rootText(utf16(u"<?xml version='1.0' encoding='UTF-16'?>"_s + text, true)), german);
    EXPECT_TRUE(isEmptyAfterParsing(utf16(u"<a>"_s + QChar(0xD800) + u"</a>"_s, false)));
    EXPECT_TRUE(isEmptyAfterParsing(utf16(text, false) + 'x'));
}

TEST(XmlFile, OnlyElementsAndTextsAreNodes)
{
    XmlFile file;
    file.parse("<?xml version=\"1.0\"?>\n<!DOCTYPE a><!-- x --><a>\n <!-- c --> <b>x</b>\n <?p i?> <c> </c> </a>\n");
    const pugi::xml_node root = file.document().first_child();
    EXPECT_EQ(root.name(), std::string("a"));
    QByteArray names;
    for (const pugi::xml_node& child : root.children()) {
        EXPECT_EQ(child.type(), pugi::node_element);
        names += child.name();
    }
    EXPECT_EQ(names, "bc");
    EXPECT_EQ(nodeText(root.child("c")), u" "_s);
}

TEST(XmlFile, AnIndentedFileReadsLikeARawOne)
{
    XmlFile indented;
    indented.parse("<T>\r\n\t<S>\r\n\t\t<N> x </N>\r\n\t\t<E></E>\r\n\t</S>\r\n</T>\r\n");
    EXPECT_EQ(xmlToBytes(indented.document()), "<T><S><N> x </N><E/></S></T>");
}

TEST(XmlFile, AFileThatIsMissingOrNoFileIsAnEmptyDocument)
{
    const TemporaryShopFolder shop;
    XmlFile file;
    file.parse("<a/>");
    file.load(shop.path(u"gone.xml"_s));
    EXPECT_FALSE(file.document().first_child());
    file.load(shop.path(u"templates"_s));
    EXPECT_FALSE(file.document().first_child());
}

TEST(XmlFile, AFileIsRead)
{
    const TemporaryShopFolder shop;
    writeFile(shop.path(u"shop.xml"_s), "<a><b>text</b></a>");
    XmlFile file;
    file.load(shop.path(u"shop.xml"_s));
    EXPECT_EQ(GetNodeText(file.document(), "b", QString()), u"text"_s);
}

TEST(XmlFile, NothingOfAFailedParseIsLeft)
{
    XmlFile file;
    file.parse("<a><b>text</b></a>");
    ASSERT_TRUE(file.document().first_child());
    file.parse("<c><d>text</d></c><e/>");
    EXPECT_FALSE(file.document().first_child());
}

TEST(XmlFile, BytesThatOthersHoldAreLeftAlone)
{
    const QByteArray bytes = "<a>&lt;one&gt;</a>";
    const QByteArray kept(bytes.constData(), bytes.size());
    XmlFile file;
    file.parse(bytes);
    EXPECT_EQ(nodeText(file.document().document_element()), u"<one>"_s);
    EXPECT_EQ(bytes, kept);
}

TEST(XmlFile, ADocumentCanBeMoved)
{
    XmlFile file;
    file.parse("<a><b>text</b></a>");
    const XmlFile moved = std::move(file);
    EXPECT_EQ(GetNodeText(moved.document(), "b", QString()), u"text"_s);
}

TEST(XmlFile, ADocumentOfAMillionLevelsIsNoDanger)
{
    constexpr qsizetype levels = 1000000;
    const QByteArray bytes = QByteArray("<a>").repeated(levels) + "<b>deep</b>" + QByteArray("</a>").repeated(levels);
    XmlFile file;
    file.parse(bytes);
    const pugi::xml_node root = file.document().document_element();
    ASSERT_TRUE(root);
    EXPECT_EQ(GetNodeText(root, "b", QString()), u"deep"_s);
    EXPECT_EQ(nodeText(root), u"deep"_s);
    EXPECT_FALSE(firstDescendant(root, "x"));
    EXPECT_EQ(xmlToBytes(file.document()), bytes);
    file.parse("<a/>");
    EXPECT_TRUE(isEmptyAfterParsing(QByteArray("<a>").repeated(levels)));
}

TEST(XmlFile, VeryManyAttributesAreNoDanger)
{
    QByteArray bytes = "<a";
    for (int i = 0; i < 200000; ++i) {
        bytes += " b" + QByteArray::number(i) + "=''";
    }
    EXPECT_FALSE(isEmptyAfterParsing(bytes + "/>"));
    EXPECT_TRUE(isEmptyAfterParsing(bytes + " b7=''/>"));
}
