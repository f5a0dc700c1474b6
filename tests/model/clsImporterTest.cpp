#include "model/clsImporter.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

TEST(FieldsOfAnImportLine, AreSplitByTheirRules)
{
    struct Row
    {
        QString line;
        QStringList fields;
    };
    const QList<Row> rows = {
        {QString(), {QString()}},
        {u"a,b,c"_s, {u"a"_s, u"b"_s, u"c"_s}},
        {u"a"_s, {u"a"_s}},
        {u","_s, {QString(), QString()}},
        {u"a,,c"_s, {u"a"_s, QString(), u"c"_s}},
        {u"a,b,"_s, {u"a"_s, u"b"_s, QString()}},
        // Blanks after a field are dropped, those before a plain one stay.
        {u"x , y ,z"_s, {u"x"_s, u" y"_s, u"z"_s}},
        {u"a b , c  d  ,e"_s, {u"a b"_s, u" c  d"_s, u"e"_s}},
        {u"a, ,c"_s, {u"a"_s, QString(), u"c"_s}},
        {u"a,b, "_s, {u"a"_s, u"b"_s, u" "_s}},
        {u"a,b,c  "_s, {u"a"_s, u"b"_s, u"c"_s}},
        // Quotes.
        {u"\"a,b\",c,d"_s, {u"a,b"_s, u"c"_s, u"d"_s}},
        {u"  \"a\" ,b"_s, {u"a"_s, u"b"_s}},
        {u"\"ab\"c,d"_s, {u"ab\"c"_s, u"d"_s}},
        {u"\"a\"\"b\",c"_s, {u"a\"\"b\""_s, u"c"_s}},
        {u"\"\",b"_s, {QString(), u"b"_s}},
        {u"\"a , "_s, {u"a , "_s}},
        {u"x,\"open, end"_s, {u"x"_s, u"open, end"_s}},
        {u"a\"b,c"_s, {u"a\"b"_s, u"c"_s}},
        {u"\"a \",b"_s, {u"a "_s, u"b"_s}},
        {u"a\tb,\tc"_s, {u"a\tb"_s, u"\tc"_s}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(clsImporter::PSplit(row.line), row.fields) << row.line.toStdString();
    }
}

TEST(FieldsOfAnImportLine, MayBeMany)
{
    const QString line = QString(200, u',');
    EXPECT_EQ(clsImporter::PSplit(line).size(), 201);
}

class Importing : public ShopFixture
{
protected:
    void SetUp() override
    {
        session.shop = std::make_shared<ShopClass>(session.services);
        session.registerShop();
    }

    int import(const QByteArray& bytes)
    {
        const QString path = session.folder.path() + u"/products.txt"_s;
        writeFile(path, bytes);
        return errorOf([&] { clsImporter(session).Import(path); });
    }

    QStringList productNames(const CategoryClass& category) const
    {
        QStringList names;
        for (const auto& product : category.products) {
            names << product->name;
        }
        return names;
    }
};

TEST_F(Importing, EndsALineAtCrLfAtLfAndAtCr)
{
    EXPECT_EQ(import("a,1,x\r\nb,2,x\nc,3,x\rd,4,x"), 0);
    ASSERT_EQ(session.shop->categories.Count(), 1);
    EXPECT_EQ(productNames(*session.shop->categories.Item(1)), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
}

TEST_F(Importing, MakesEveryCategoryOfAPath)
{
    EXPECT_EQ(import("a,b,x\\y\\z\n"), 0);
    const auto& x = session.shop->categories.Item(1);
    const auto& y = x->categories.Item(1);
    const auto& z = y->categories.Item(1);
    EXPECT_EQ(x->name + y->name + z->name, u"xyz"_s);
    EXPECT_EQ(productNames(*z), QStringList{u"a"_s});
    EXPECT_EQ(z->parentCategory.lock(), y);
}

TEST_F(Importing, TakesATrailingBackslashAsACategoryWithoutAName)
{
    EXPECT_EQ(import("a,b,x\\\n"), 0);
    EXPECT_EQ(session.shop->categories.Item(1)->categories.Item(1)->name, QString());
}

TEST_F(Importing, MakesTwoProductsOfTwoEqualLines)
{
    EXPECT_EQ(import("a,b,c\na,b,c\n"), 0);
    const auto& category = session.shop->categories.Item(1);
    ASSERT_EQ(category->products.Count(), 2);
    EXPECT_NE(category->products.Item(1)->id, category->products.Item(2)->id);
}

TEST_F(Importing, EndsAtAnEmptyLineAndKeepsWhatCameBefore)
{
    EXPECT_EQ(import("a,b,c\n\nd,e,c\n"), 9);
    EXPECT_EQ(productNames(*session.shop->categories.Item(1)), QStringList{u"a"_s});
}

TEST_F(Importing, TellsTheLineThatIsNotUnderstood)
{
    const QString path = session.folder.path() + u"/products.txt"_s;
    writeFile(path, "a,1,x\r\nb,2,x\ntwo,fields\nc,3,x\n");
    EXPECT_EQ(circumstancesOf([&] { clsImporter(session).Import(path); }),
              (QStringList{u"The line has fewer than three fields."_s,
                           u"Line 3 of the import file \"products.txt\" was being read."_s}));
}

TEST_F(Importing, CountsItsProductsAndTheLineThatStoppedIt)
{
    clsImporter importer(session);
    writeFile(session.folder.path() + u"/whole.txt"_s, "a,b,c\r\nd,e,f\r\n");
    importer.Import(session.folder.path() + u"/whole.txt"_s);
    EXPECT_EQ(importer.productCount, 2);
    EXPECT_EQ(importer.line, 2);
    writeFile(session.folder.path() + u"/short.txt"_s, "a,b,c\rg,h,i\nshort\nlost,b,c");
    EXPECT_EQ(errorOf([&] { importer.Import(session.folder.path() + u"/short.txt"_s); }), 9);
    EXPECT_EQ(importer.productCount, 2);
    EXPECT_EQ(importer.line, 3);
    EXPECT_NE(errorOf([&] { importer.Import(session.folder.path() + u"/gone.txt"_s); }), 0);
    EXPECT_EQ(importer.productCount, 0);
    EXPECT_EQ(importer.line, 0);
}

TEST_F(Importing, IgnoresFurtherFields)
{
    EXPECT_EQ(import("a,b,c,d,e\n"), 0);
    EXPECT_EQ(productNames(*session.shop->categories.Item(1)), QStringList{u"a"_s});
}

TEST_F(Importing, OfAMissingFileIsErrorFiftyThree)
{
    EXPECT_EQ(errorOf([&] { clsImporter(session).Import(session.folder.path() + u"/gone"_s); }), 53);
}

TEST_F(Importing, ReportsHowFarItIs)
{
    QByteArray lines;
    for (int line = 0; line < 1200; ++line) {
        lines += "a,b,c\n";
    }
    writeFile(session.folder.path() + u"/products.txt"_s, lines);
    QList<qsizetype> reports;
    clsImporter(session, [&](qsizetype done, qsizetype total) {
        EXPECT_EQ(total, 7200);
        reports << done;
    }).Import(session.folder.path() + u"/products.txt"_s);
    EXPECT_EQ(reports, (QList<qsizetype>{3000, 6000}));
}

} // namespace
