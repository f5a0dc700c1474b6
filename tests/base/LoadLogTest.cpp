#include "base/LoadLog.h"

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

TEST(LoadLog, EveryMessageIsAQuotedLine)
{
    const TemporaryShopFolder shop;
    LoadLog log(shop.folder());
    log.WriteLoadLog(u"Countries loaded"_s);
    EXPECT_EQ(fileBytes(shop.path(u"load.log"_s)), "\"Countries loaded\"\r\n");
    log.WriteLoadLog(u"MainForm loaded"_s);
    EXPECT_EQ(fileBytes(shop.path(u"load.log"_s)), "\"Countries loaded\"\r\n\"MainForm loaded\"\r\n");
}

TEST(LoadLog, AMessageOfBlanksStandsInQuotesToo)
{
    const TemporaryShopFolder shop;
    LoadLog log(shop.folder());
    log.WriteLoadLog(u"   "_s);
    log.WriteLoadLog(QString());
    EXPECT_EQ(fileBytes(shop.path(u"load.log"_s)), "\"   \"\r\n\"\"\r\n");
}

TEST(LoadLog, AMessageIsWrittenInUtf8)
{
    const TemporaryShopFolder shop;
    LoadLog(shop.folder()).WriteLoadLog(u"M\u00FCll \"\u20AC\""_s);
    EXPECT_EQ(fileBytes(shop.path(u"load.log"_s)), "\"M\xC3\xBCll \"\xE2\x82\xAC\"\"\r\n");
}

TEST(LoadLog, AResetForgetsTheLastSession)
{
    const TemporaryShopFolder shop;
    LoadLog log(shop.folder());
    log.reset(); // nothing there yet
    log.WriteLoadLog(u"first"_s);
    log.reset();
    EXPECT_FALSE(QFile::exists(shop.path(u"load.log"_s)));
    log.WriteLoadLog(u"second"_s);
    EXPECT_EQ(fileBytes(shop.path(u"load.log"_s)), "\"second\"\r\n");
}

TEST(LoadLog, ALogThatCannotBeDeletedIsNoErrorButOneThatCannotBeAppendedToIs)
{
    const TemporaryShopFolder shop;
    QDir().mkdir(shop.path(u"load.log"_s));
    writeFile(shop.path(u"load.log/keeps"_s), "the folder");
    LoadLog log(shop.folder());
    EXPECT_EQ(errorOf([&] { log.reset(); }), 0);
    EXPECT_EQ(errorOf([&] { log.WriteLoadLog(u"x"_s); }), 75);
}

TEST(LoadLog, ALogInAFolderThatIsGoneIsAnError)
{
    const TemporaryShopFolder shop;
    LoadLog log(ApplicationFolder(shop.path(u"gone"_s)));
    EXPECT_EQ(errorOf([&] { log.WriteLoadLog(u"x"_s); }), 75);
}
