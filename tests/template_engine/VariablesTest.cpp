#include "template_engine/Variables.h"

#include "support/TestSupport.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

class CountingText : public TextObject
{
public:
    QString text() const override { return QString::number(++asked); }

    mutable int asked = 0;
};

QStringList keys(const Variables& variables)
{
    QStringList keys;
    for (int i = 1; i <= variables.Count(); ++i) {
        keys += variables.Key(i);
    }
    return keys;
}

} // namespace

TEST(Variables, KeepTheOrderOfAddingAndTheSpellingOfTheKeys)
{
    NameTable names;
    Variables variables(names);
    variables.Add(u"zebra", u"1"_s);
    variables.Add(u"Ape", u"2"_s);
    variables.Add(u"MOUSE", u"3"_s);
    EXPECT_EQ(keys(variables), (QStringList{u"zebra"_s, u"Ape"_s, u"MOUSE"_s}));
    EXPECT_EQ(textOf(variables.Item(2)), u"2"_s);
    // Another spelling of the same names, in variables on the same table.
    Variables others(names);
    others.Add(u"Zebra", u"1"_s);
    others.Add(u"ape", u"2"_s);
    EXPECT_EQ(keys(others), (QStringList{u"Zebra"_s, u"ape"_s}));
    EXPECT_EQ(textOf(others.Item(u"ZEBRA")), u"1"_s);
}

TEST(Variables, KeysAreAlikeWithoutRegardToCase)
{
    const struct
    {
        QStringView key;
        QStringView lookup;
        bool found;
    } cases[] = {
        {u"id", u"ID", true},   {u"Straße", u"STRAßE", true},   {u"Straße", u"STRASSE", false},
        {u"ÄÖÜ", u"äöü", true}, {u"Σίσυφος", u"ΣΊΣΥΦΟΣ", true}, {u"\U00010400x", u"\U00010428X", true},
        {u"İ", u"i", false},    {u"\u212A", u"k", true},        {u"id ", u"id", false},
        {u"", u"", true},
    };
    for (const auto& one : cases) {
        NameTable names;
        Variables variables(names);
        variables.Add(one.key, u"1"_s);
        EXPECT_EQ(variables.exists(one.lookup), one.found) << one.key.toString().toStdString();
        EXPECT_EQ(one.key.compare(one.lookup, Qt::CaseInsensitive) == 0, one.found) << one.key.toString().toStdString();
        EXPECT_EQ(errorOf([&] { variables.Add(one.lookup, u"2"_s); }), one.found ? 457 : 0);
    }
}

TEST(Variables, LoneSurrogatesAreKeysLikeOthers)
{
    NameTable names;
    Variables variables(names);
    const QString lone = QString(QChar(0xD801)) + u"x"_s;
    variables.Add(lone, u"1"_s);
    EXPECT_TRUE(variables.exists(lone));
    EXPECT_FALSE(variables.exists(QString(QChar(0xD801))));
    EXPECT_FALSE(variables.exists(u"x"));
}

TEST(Variables, AddingAKeyThatIsThereIsAFailureAndChangesNothing)
{
    NameTable names;
    Variables variables(names);
    variables.Add(u"id", u"1"_s);
    variables.Add(u"name", u"2"_s);
    for (const QStringView key : {u"id", u"name", u"NAME"}) {
        EXPECT_EQ(errorOf([&] { variables.Add(key, u"3"_s); }), 457);
    }
    EXPECT_EQ(errorOf([&] { variables.Add(u"Id", VariableRows()); }), 457);
    EXPECT_EQ(variables.Count(), 2);
    EXPECT_EQ(textOf(variables.Item(u"id")), u"1"_s);
    variables.Add(u"third", u"3"_s);
    EXPECT_EQ(textOf(variables.Item(3)), u"3"_s);
}

TEST(Variables, AKeyThatOnlyOtherRowsHaveIsMissing)
{
    NameTable names;
    Variables one(names);
    one.Add(u"id", u"1"_s);
    one.Add(u"first", u"yes"_s);
    Variables two(names);
    two.Add(u"id", u"2"_s);
    two.Add(u"last", u"yes"_s);
    EXPECT_FALSE(two.exists(u"first"));
    EXPECT_FALSE(one.exists(u"last"));
    EXPECT_TRUE(one.exists(u"first"));
    EXPECT_TRUE(two.exists(u"last"));
    EXPECT_FALSE(Variables(names).exists(u"id"));
}

TEST(Variables, KeysAreFoundAtEveryStageOfFilling)
{
    NameTable names;
    Variables variables(names);
    for (int i = 0; i < 300; ++i) {
        const QString key = u"key%1"_s.arg(i);
        EXPECT_FALSE(variables.exists(key));
        variables.Add(key, QString::number(i));
        EXPECT_TRUE(variables.exists(key));
        EXPECT_EQ(variables.Count(), i + 1);
    }
    for (int i = 0; i < 300; ++i) {
        EXPECT_EQ(textOf(variables.Item(u"KEY%1"_s.arg(i))), QString::number(i));
    }
}

TEST(Variables, PositionsCountFromOne)
{
    NameTable names;
    Variables variables(names);
    variables.Add(u"id", u"1"_s);
    for (const int index : {-1, 0, 2}) {
        EXPECT_EQ(errorOf([&] { static_cast<void>(variables.Item(index)); }), 9);
        EXPECT_EQ(errorOf([&] { static_cast<void>(variables.Key(index)); }), 9);
    }
    EXPECT_EQ(errorOf([&] { static_cast<void>(variables.Item(u"none")); }), 5);
}

TEST(Variables, ValuesHaveTheirTextForm)
{
    const struct
    {
        VariableValue value;
        QString text;
    } cases[] = {
        {u" as it stands "_s, u" as it stands "_s},
        {QString(), u""_s},
        {qint16{0}, u"0"_s},
        {qint16{1234}, u"1234"_s},
        {qint16{-32768}, u"-32768"_s},
        {qint16{32767}, u"32767"_s},
        {true, u"True"_s},
        {false, u"False"_s},
        {0.0F, u"0"_s},
        {12.5F, localised(u"12.5"_s)},
        {-0.25F, localised(u"-0.25"_s)},
        {1234567.0F, u"1234567"_s},
        {12345678.0F, localised(u"1.234568E+07"_s)},
        {1.0F / 3.0F, localised(u"0.3333333"_s)},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(textOf(one.value), one.text);
    }
}

TEST(Variables, AnObjectIsAskedForItsTextWhenTheTextIsWanted)
{
    NameTable names;
    Variables variables(names);
    const auto object = std::make_shared<const CountingText>();
    variables.Add(u"price", object);
    EXPECT_EQ(object->asked, 0);
    EXPECT_EQ(textOf(variables.Item(u"price")), u"1"_s);
    EXPECT_EQ(textOf(variables.Item(u"price")), u"2"_s);
}

TEST(Variables, AnObjectThatIsNotThereIsObjectNotSet)
{
    EXPECT_EQ(errorOf([] { textOf(std::shared_ptr<const TextObject>()); }), 91);
}

TEST(Variables, AListHasNoTextAndATextHasNoRows)
{
    const VariableValue list = std::make_shared<const VariableRows>();
    EXPECT_EQ(errorOf([&] { textOf(list); }), 13);
    EXPECT_EQ(rowsOf(list).size(), 0U);
    EXPECT_EQ(rowsOf(std::shared_ptr<const VariableRows>()).size(), 0U);
    for (const VariableValue& value : {VariableValue(u"x"_s), VariableValue(qint16{1}), VariableValue(true),
                                       VariableValue(1.0F), VariableValue(std::make_shared<const CountingText>())}) {
        EXPECT_EQ(errorOf([&] { rowsOf(value); }), 13);
    }
}

TEST(Variables, RowsKeepTheirOrder)
{
    NameTable names;
    VariableRows rows;
    for (const QStringView id : {u"2", u"1", u"3"}) {
        rows.emplace_back(names).Add(u"id", id.toString());
    }
    Variables page(names);
    page.Add(u"rows", std::move(rows));
    QStringList ids;
    for (const Variables& row : rowsOf(page.Item(u"rows"))) {
        ids += textOf(row.Item(u"id"));
    }
    EXPECT_EQ(ids, (QStringList{u"2"_s, u"1"_s, u"3"_s}));
}

TEST(Variables, ACopyIsItsOwn)
{
    NameTable names;
    Variables variables(names);
    variables.Add(u"id", u"1"_s);
    Variables copy = variables;
    copy.Add(u"name", u"2"_s);
    EXPECT_EQ(variables.Count(), 1);
    EXPECT_FALSE(variables.exists(u"name"));
    variables.Add(u"other", u"3"_s);
    EXPECT_EQ(textOf(copy.Item(u"name")), u"2"_s);
    EXPECT_FALSE(copy.exists(u"other"));
}
