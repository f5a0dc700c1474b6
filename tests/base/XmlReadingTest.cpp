#include "base/XmlReading.h"

#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "support/TestSupport.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

class XmlReading : public testing::Test
{
protected:
    pugi::xml_node parse(const QByteArray& xml)
    {
        file.parse(xml);
        return file.document().first_child();
    }

    XmlFile file;
    XmlTexts texts{1000};
};

constexpr std::array<const char*, 3> names = {"A", "B", "C"};

// Documents whose look-ups are compared with a search for each name.
const QList<QByteArray>& documents()
{
    static const QList<QByteArray> list = {
        "<R/>",
        "<R>text</R>",
        "<R><A>1</A><B>2</B><C>3</C></R>",
        "<R><C>1</C><B>2</B><A>3</A></R>",
        "<R><A>1</A><A>2</A><B><A>3</A><C>4</C></B><C>5</C></R>",
        "<R><X><Y><B>1</B></Y></X><B>2</B><A><A>3</A></A></R>",
        "<R><A>1<X>2</X>3</A><X/><Y/><a>4</a></R>",
        "<R><X><A/></X>text<B> </B></R>",
    };
    return list;
}

TEST_F(XmlReading, OneWalkFindsWhatASearchForEachNameFinds)
{
    for (const QByteArray& xml : documents()) {
        const pugi::xml_node root = parse(xml);
        std::array<pugi::xml_node, names.size()> hits;
        findFirstDescendants(root, names, hits);
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_TRUE(hits[i] == firstDescendant(root, names[i])) << xml.toStdString() << " " << names[i];
        }
    }
}

TEST_F(XmlReading, AWalkStaysBelowItsElement)
{
    const pugi::xml_node root = parse("<R><X><A>1</A></X><B>2</B></R>");
    std::array<pugi::xml_node, names.size()> hits;
    findFirstDescendants(root.first_child(), names, hits);
    EXPECT_TRUE(hits[0]);
    EXPECT_FALSE(hits[1]);
}

TEST_F(XmlReading, AGatheredElementAnswersLikeASearchInIt)
{
    FlatElements flat(names);
    for (const QByteArray& xml : documents()) {
        const pugi::xml_node root = parse(xml);
        flat.gather(root); // the same object for all
        std::array<FlatElements::Place, names.size()> hits{};
        flat.findFirst(0, hits);
        for (std::size_t i = 0; i < names.size(); ++i) {
            const pugi::xml_node found = firstDescendant(root, names[i]);
            ASSERT_EQ(hits[i] == FlatElements::none, !found) << xml.toStdString() << " " << names[i];
            EXPECT_EQ(flat.text(hits[i], texts, u"default"_s), textOr(found, u"default"_s));
            if (found) {
                EXPECT_TRUE(flat.node(hits[i]) == found);
                std::array<FlatElements::Place, names.size()> below{};
                flat.findFirst(hits[i], below);
                for (std::size_t j = 0; j < names.size(); ++j) {
                    EXPECT_EQ(flat.text(below[j], texts), textOr(firstDescendant(found, names[j]), QString()));
                }
            }
        }
    }
}

TEST_F(XmlReading, AllElementsOfANameAreFoundInOrder)
{
    const pugi::xml_node root = parse("<R><A>1</A><X><A>2<A>3</A></A></X><B/><A>4</A></R>");
    QStringList found;
    for (const pugi::xml_node& element : allDescendants(root, "A")) {
        found.append(nodeText(element));
    }
    EXPECT_EQ(found, (QStringList{u"1"_s, u"23"_s, u"3"_s, u"4"_s}));
}

// What a search in each row by itself finds.
std::vector<FlatElements::Place> searchedRows(const FlatElements& flat, std::size_t rowName,
                                              std::span<const std::size_t> wanted)
{
    std::vector<FlatElements::Place> hits;
    for (FlatElements::Place place = 1; place < flat.count(); ++place) {
        if (isNamed(flat.node(place), names[rowName])) {
            std::array<FlatElements::Place, names.size()> found{};
            flat.findFirst(place, found);
            for (const std::size_t name : wanted) {
                hits.push_back(found[name]);
            }
        }
    }
    return hits;
}

TEST_F(XmlReading, OneRunOverRowsFindsWhatASearchInEachFinds)
{
    constexpr std::array<std::size_t, 2> wanted = {1, 2};
    const QList<QByteArray> tables = {
        "<R/>",
        "<R><A><B>1</B><C>2</C></A><A><C>3</C></A><A/></R>",
        "<R><B>0</B><A><A><A><B>1</B></A><C>2</C></A></A><C>3</C></R>",
        "<R><A/><B>1</B><A><X><B>2</B><A><B>3</B></A></X></A></R>",
    };
    FlatElements flat(names);
    for (const QByteArray& xml : tables + documents()) {
        flat.gather(parse(xml));
        std::vector<FlatElements::Place> rows;
        std::vector<FlatElements::Place> hits;
        flat.findRows(0, 0, wanted, rows, hits);
        EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
        EXPECT_EQ(hits.size(), rows.size() * wanted.size());
        EXPECT_EQ(hits, searchedRows(flat, 0, wanted)) << xml.toStdString();
    }
}

TEST_F(XmlReading, NumberedNamesAreFoundByTheirExactNumber)
{
    const pugi::xml_node root = parse("<R><Cost2>two</Cost2><Cost02>no</Cost02><Cost>no</Cost><Cost4>beyond</Cost4>"
                                      "<X><Cost1>one</Cost1></X><Cost2>second</Cost2><Cost-1/><Cost99999999999/></R>");
    FlatElements flat(names);
    flat.gather(root);
    std::vector<FlatElements::Numbered> hits;
    flat.findNumbered("Cost", 1, 3, 0, hits);
    ASSERT_EQ(hits.size(), 2U); // there is no third
    EXPECT_EQ(hits[0].index, 0);
    EXPECT_EQ(flat.text(hits[0].place, texts), u"one"_s);
    EXPECT_EQ(hits[1].index, 1);
    EXPECT_EQ(flat.text(hits[1].place, texts), u"two"_s);
}

TEST_F(XmlReading, NumberedNamesOfRowsAreFoundInEachRow)
{
    FlatElements flat(names);
    flat.gather(parse("<R><A><Cost1>1</Cost1><A><Cost2>2</Cost2></A></A><A><Cost3>no</Cost3></A></R>"));
    std::vector<FlatElements::Place> hits;
    flat.findNumberedRows(0, 0, "Cost", 1, 2, hits);
    QStringList found;
    for (const FlatElements::Place place : hits) {
        found.append(flat.text(place, texts, u"-"_s));
    }
    EXPECT_EQ(found, (QStringList{u"1"_s, u"2"_s, u"-"_s, u"2"_s, u"-"_s, u"-"_s}));
}

TEST_F(XmlReading, TextsThatLieInEachOtherAreTakenUpToAnAllowance)
{
    const pugi::xml_node root = parse("<A>12345<B>67890<C>abcde</C></B></A>");
    XmlTexts enough(100);
    EXPECT_EQ(enough.text(root), u"1234567890abcde"_s);
    EXPECT_EQ(enough.textOr(root.child("B"), u"-"_s), u"67890abcde"_s);
    EXPECT_EQ(enough.textOr(root.child("X"), u"-"_s), u"-"_s);
    XmlTexts little(20); // 15 characters in three elements
    EXPECT_EQ(little.text(root), u"1234567890abcde"_s);
    EXPECT_EQ(errorOf([&] { little.text(root.child("B")); }), 7);
    EXPECT_EQ(little.text(root.child("B").child("C")), u"abcde"_s); // in one piece: no cost
}

TEST_F(XmlReading, ATextIsAChildNodeWhereverTheParserPutIt)
{
    EXPECT_EQ(childTexts(parse("<R/>")).size(), 0U);
    EXPECT_EQ(childTexts(parse("<R>one</R>")), (std::vector<QString>{u"one"_s}));
    EXPECT_EQ(childTexts(parse("<R>one<A>t<B>wo</B></A>three<C/></R>")),
              (std::vector<QString>{u"one"_s, u"two"_s, u"three"_s, QString()}));
}

TEST_F(XmlReading, TheFirstChildOfEachChild)
{
    using Texts = std::vector<std::optional<QString>>;
    EXPECT_EQ(firstGrandchildTexts(parse("<R/>")), Texts());
    EXPECT_EQ(firstGrandchildTexts(parse("<R>text</R>")), (Texts{std::nullopt}));
    EXPECT_EQ(firstGrandchildTexts(parse("<R><A><B>one</B><C>no</C></A><A/><A>two<B>no</B></A>text</R>")),
              (Texts{u"one"_s, std::nullopt, u"two"_s, std::nullopt}));
}

TEST_F(XmlReading, DeepNestingNeedsNoStack)
{
    constexpr int depth = 200'000;
    const pugi::xml_node root =
        parse(QByteArray("<X>").repeated(depth) + "<C>deep</C>" + QByteArray("</X>").repeated(depth));
    std::array<pugi::xml_node, names.size()> hits;
    findFirstDescendants(root, names, hits);
    EXPECT_EQ(textOr(hits[2], QString()), u"deep"_s);
    FlatElements flat(names);
    flat.gather(root);
    std::array<FlatElements::Place, names.size()> places{};
    flat.findFirst(0, places);
    EXPECT_EQ(flat.text(places[2], texts), u"deep"_s);
}

} // namespace
