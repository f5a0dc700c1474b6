// The shop that an installation carries.
#include "base/Numbers.h"
#include "model/ShopFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class SampleShop : public ShopFixture
{
protected:
    SampleShop()
    {
        const QDir app(QStringLiteral(TARNWICK_SOURCE_DIR "/app"));
        EXPECT_TRUE(QFile::copy(app.filePath(u"shop.xml"_s), session.folder.shopFile()));
        for (const QString& picture : QDir(app.filePath(u"pictures"_s)).entryList(QDir::Files)) {
            EXPECT_TRUE(QFile::copy(app.filePath(u"pictures/"_s + picture), session.folder.picturesFolder() + picture));
        }
    }

    // Number texts are written with the user's separator, whatever the file had.
    static bool isNumber(const QString& element)
    {
        static const QStringList names = {u"Price"_s,   u"MPrice"_s, u"Weight"_s,     u"From"_s,     u"To"_s,
                                          u"Percent"_s, u"Cost"_s,   u"ApplyToAll"_s, u"Specific"_s, u"ShippingCost"_s};
        QString name = element;
        while (!name.isEmpty() && name.back().isDigit()) {
            name.chop(1);
        }
        return names.contains(name);
    }

    // Every element in document order as its depth, its name and, for a leaf, its text.
    static QStringList outline(const QByteArray& xml)
    {
        XmlFile file;
        file.parse(xml);
        QStringList lines;
        const pugi::xml_node root = file.document().first_child();
        int depth = 0;
        for (pugi::xml_node at = root; at; at = nextNode(at, root)) {
            depth = 0;
            for (pugi::xml_node above = at; above != root; above = above.parent()) {
                ++depth;
            }
            const bool isLeaf = !at.first_child();
            const QString name = QString::fromUtf8(at.name());
            const QString text = isLeaf ? nodeText(at) : QString();
            lines.append(QString::number(depth) + u' ' + name + u' ' +
                         (isNumber(name) ? NormalizeDecimal(text) : text));
        }
        return lines;
    }
};

TEST_F(SampleShop, ItLoadsAndItsTreeIsBuilt)
{
    ASSERT_TRUE(loadShop(session));
    session.registerShop();
    EXPECT_EQ(session.LoadedShopVersion, u"1.2.0"_s);
    EXPECT_GE(session.shop->categories.Count(), 4);
    EXPECT_GE(session.shop->GetProductCount(), 20);
}

TEST_F(SampleShop, ASaveKeepsEveryElementAndText)
{
    const QStringList before = outline(fileBytes(session.folder.shopFile()));
    ASSERT_GT(before.size(), 500);
    ASSERT_TRUE(loadShop(session));
    writeShopFile(session);
    const QStringList after = outline(fileBytes(session.folder.shopFile()));
    ASSERT_EQ(after.size(), before.size());
    for (qsizetype i = 0; i < before.size(); ++i) {
        ASSERT_EQ(after[i], before[i]) << "element " << i;
    }
}

TEST_F(SampleShop, ASaveIsTheSameEveryTime)
{
    ASSERT_TRUE(loadShop(session));
    writeShopFile(session);
    const QByteArray first = fileBytes(session.folder.shopFile());
    ASSERT_TRUE(loadShop(session));
    writeShopFile(session);
    EXPECT_EQ(fileBytes(session.folder.shopFile()), first);
}

} // namespace
