#include "base/ApplicationFolder.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

TEST(ApplicationFolder, EverythingOfTheShopHasItsPlace)
{
    for (const QString& path : {u"/home/owner/shop"_s, u"/home/owner/shop/"_s, u"/home/owner/shop//"_s}) {
        const ApplicationFolder folder(path);
        EXPECT_EQ(folder.path(), u"/home/owner/shop"_s);
        EXPECT_EQ(folder.shopFile(), u"/home/owner/shop/shop.xml"_s);
        EXPECT_EQ(folder.countriesFile(), u"/home/owner/shop/countries.txt"_s);
        EXPECT_EQ(folder.loadLogFile(), u"/home/owner/shop/load.log"_s);
        EXPECT_EQ(folder.uploadLogFile(), u"/home/owner/shop/upload.log"_s);
        EXPECT_EQ(folder.templatesFolder(), u"/home/owner/shop/templates/"_s);
        EXPECT_EQ(folder.picturesFolder(), u"/home/owner/shop/pictures/"_s);
        EXPECT_EQ(folder.backupsFolder(), u"/home/owner/shop/backups/"_s);
        EXPECT_EQ(folder.pictureFile(u"logo.png"_s), u"/home/owner/shop/pictures/logo.png"_s);
    }
}

TEST(ApplicationFolder, APictureMayHaveAnyNameThatStaysInItsFolder)
{
    const ApplicationFolder folder(u"/shop"_s);
    for (const QString& name : {u".hidden"_s, u"..."_s, u"a..b"_s, u"\u00FC.png"_s, u" "_s, u"a\\b"_s}) {
        EXPECT_EQ(folder.pictureFile(name), u"/shop/pictures/"_s + name);
    }
}

TEST(ApplicationFolder, APictureNameThatLeadsOutIsLikeAFileThatIsNotThere)
{
    const ApplicationFolder folder(u"/shop"_s);
    const QString names[] = {u""_s,
                             u"."_s,
                             u".."_s,
                             u"../shop.xml"_s,
                             u"/etc/passwd"_s,
                             u"/"_s,
                             u"a/b"_s,
                             u"a/../b"_s,
                             QString(u"a.png"_s + QChar(0)),
                             u"a/"_s};
    for (const QString& name : names) {
        EXPECT_EQ(errorOf([&] { folder.pictureFile(name); }), 53) << name.toStdString();
    }
}
