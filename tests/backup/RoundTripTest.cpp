#include "backup/BackUpFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using RoundTripTest = BackUpTest;

} // namespace

TEST_F(RoundTripTest, AShopWith2000PicturesComesBackByteForByte)
{
    QMap<QString, QByteArray> shop;
    shop.insert(u"shop.xml"_s, referenceShop() + QByteArray(300000, ' '));
    for (int i = 0; i < 2000; ++i) {
        // Most pictures do not deflate, some do; lengths from 1 byte on, on both sides of a block of zlib's.
        const qsizetype size = i == 0 ? 1 : i * 37 % 20011;
        const QString name = u"pictures/picture %1 \u00FC.png"_s.arg(i);
        shop.insert(name, i % 10 == 0 ? QByteArray(size + 1, 'p') : noise(size + 1, static_cast<quint32>(i)));
    }
    for (int i = 0; i < 12; ++i) {
        shop.insert(u"templates/page%1.html"_s.arg(i), referencePage() + QByteArray::number(i));
    }
    for (auto file = shop.cbegin(); file != shop.cend(); ++file) {
        writeFile(files.path(file.key()), file.value());
    }
    ASSERT_EQ(filesBelow(files.folder().path()), shop);

    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"big"_s;
    ASSERT_TRUE(packer.BackUp(name));
    EXPECT_EQ(packer.Count(), shop.size());
    const QString elsewhere = files.path(u"big.kvb"_s);
    ASSERT_TRUE(QFile::rename(files.path(u"backups/big.kvb"_s), elsewhere));
    QDir().rmdir(files.path(u"backups"_s));
    const QByteArray packed = fileBytes(elsewhere);

    // The shop goes on living: files change, go and come.
    writeFile(files.path(u"shop.xml"_s), "changed");
    writeFile(files.path(u"pictures/picture 1 \u00FC.png"_s), QByteArray(100000, 'c'));
    QFile::remove(files.path(u"pictures/picture 2 \u00FC.png"_s));
    for (int i = 0; i < 50; ++i) {
        writeFile(files.path(u"pictures/stray%1.png"_s.arg(i)), "stray");
    }
    writeFile(files.path(u"templates/stray.html"_s), "stray");

    clsPacker restorer(files.folder(), prompts, clock, u"1.2.0"_s);
    ASSERT_TRUE(restorer.Restore(elsewhere));
    EXPECT_EQ(fileBytes(elsewhere), packed);
    ASSERT_TRUE(QFile::remove(elsewhere));
    // Not EXPECT_EQ, which would print the shop.
    const QMap<QString, QByteArray> restored = withoutBackUps(filesBelow(files.folder().path()));
    EXPECT_EQ(restored.keys(), shop.keys());
    EXPECT_TRUE(restored == shop);
}
