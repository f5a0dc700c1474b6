// The command of the Debian package: it makes the owner's folder once and later brings only what is not the owner's.
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A package with a program that only tells where it was started, and an owner without a shop.
class OwnersFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        putProgram("first");
        put(u"share/tarnwick/shop/shop.xml"_s, "sample");
        put(u"share/tarnwick/shop/countries.txt"_s, "Norway");
        put(u"share/tarnwick/shop/pictures/cup.png"_s, "cup");
        put(u"share/tarnwick/shop/templates/main.html"_s, "page");
        put(u"share/tarnwick/shop/templates/main.html.def"_s, "page");
        put(u"share/tarnwick/guide/index.html"_s, "guide");
        put(u"share/tarnwick/guide/pictures/window.png"_s, "window");
    }
    void put(const QString& name, const QByteArray& bytes)
    {
        const QString path = package.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path, bytes);
    }
    void putProgram(const QByteArray& word)
    {
        put(u"lib/tarnwick/Tarnwick"_s, "#!/bin/sh\necho " + word + " from \"$(pwd -P)\"\n");
        QFile::setPermissions(package.filePath(u"lib/tarnwick/Tarnwick"_s),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // Runs the command and gives back what the program said.
    QByteArray start()
    {
        QProcess command;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.remove(u"XDG_CONFIG_HOME"_s);
        environment.insert(u"TARNWICK_PACKAGE"_s, package.path());
        command.setProcessEnvironment(environment);
        command.start(QStringLiteral(TARNWICK_SOURCE_DIR "/packaging/debian/tarnwick"), QStringList());
        EXPECT_TRUE(command.waitForFinished(60'000));
        EXPECT_EQ(command.exitCode(), 0) << command.readAllStandardError().toStdString();
        return command.readAllStandardOutput().trimmed();
    }
    QString folder() const { return home.filePath(u"Documents/Tarnwick"_s); }
    QByteArray bytes(const QString& name) const { return fileBytes(folder() + u'/' + name); }

    QTemporaryDir package;
    QTemporaryDir home;
};

TEST_F(OwnersFolder, IsMadeAtTheFirstStartWithTheProgramAndTheSampleShop)
{
    const QByteArray said = start();
    EXPECT_EQ(said, "first from " + QFileInfo(folder()).canonicalFilePath().toUtf8());
    EXPECT_EQ(bytes(u"shop.xml"_s), "sample");
    EXPECT_EQ(bytes(u"countries.txt"_s), "Norway");
    EXPECT_EQ(bytes(u"pictures/cup.png"_s), "cup");
    EXPECT_EQ(bytes(u"templates/main.html"_s), "page");
    EXPECT_EQ(bytes(u"templates/main.html.def"_s), "page");
    EXPECT_EQ(bytes(u"guide/index.html"_s), "guide");
    EXPECT_EQ(bytes(u"guide/pictures/window.png"_s), "window");
    EXPECT_EQ(QDir(home.filePath(u"Documents"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"Tarnwick"_s});
}

TEST_F(OwnersFolder, StandsInTheDocumentsFolderThatTheDesktopNames)
{
    QDir(home.path()).mkpath(u".config"_s);
    QDir(home.path()).mkpath(u"Papers"_s);
    writeFile(home.filePath(u".config/user-dirs.dirs"_s), "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    start();
    EXPECT_TRUE(QFileInfo(home.filePath(u"Papers/Tarnwick/shop.xml"_s)).isFile());
}

TEST_F(OwnersFolder, StaysWhereItIsWhenTheDesktopNamesADocumentsFolderLater)
{
    start();
    writeFile(folder() + u"/shop.xml"_s, "mine");
    QDir(home.path()).mkpath(u".config"_s);
    writeFile(home.filePath(u".config/user-dirs.dirs"_s), "XDG_DOCUMENTS_DIR=\"$HOME/Two  Papers\"\n");
    EXPECT_TRUE(start().endsWith("Documents/Tarnwick"));
    QDir(folder()).removeRecursively();
    EXPECT_TRUE(start().endsWith("Two  Papers/Tarnwick"));
}

TEST_F(OwnersFolder, StartsWhatIsThereWhenNothingNewerCanBePutIntoIt)
{
    start();
    putProgram("second");
    put(u"share/tarnwick/guide/index.html"_s, "newer guide");
    // Stands for a folder that cannot be written to.
    QDir(folder() + u"/templates"_s).removeRecursively();
    writeFile(folder() + u"/templates"_s, "in the way");
    EXPECT_TRUE(start().startsWith("second from "));
    EXPECT_EQ(bytes(u"guide/index.html"_s), "newer guide");
    EXPECT_EQ(bytes(u"templates"_s), "in the way");
}

TEST_F(OwnersFolder, GetsANewerProgramNewerFactoryTemplatesAndTheNewerGuide)
{
    start();
    putProgram("second");
    put(u"share/tarnwick/shop/templates/main.html.def"_s, "newer page");
    put(u"share/tarnwick/guide/index.html"_s, "newer guide");
    EXPECT_TRUE(start().startsWith("second from "));
    EXPECT_EQ(bytes(u"templates/main.html.def"_s), "newer page");
    EXPECT_EQ(bytes(u"guide/index.html"_s), "newer guide");
}

TEST_F(OwnersFolder, KeepsTheShopItsPicturesAndTheTemplatesInUse)
{
    start();
    writeFile(folder() + u"/shop.xml"_s, "mine");
    QFile::remove(folder() + u"/pictures/cup.png"_s);
    put(u"share/tarnwick/shop/shop.xml"_s, "newer sample");
    put(u"share/tarnwick/shop/countries.txt"_s, "Norway,Chile");
    put(u"share/tarnwick/shop/templates/main.html"_s, "newer page");
    put(u"share/tarnwick/shop/pictures/jug.png"_s, "jug");
    start();
    EXPECT_EQ(bytes(u"shop.xml"_s), "mine");
    EXPECT_EQ(bytes(u"countries.txt"_s), "Norway");
    EXPECT_EQ(bytes(u"templates/main.html"_s), "page");
    EXPECT_TRUE(QDir(folder() + u"/pictures"_s).isEmpty());
}

TEST_F(OwnersFolder, LeavesARunningProgramTheFileThatItWasStartedFrom)
{
    start();
    QFile running(folder() + u"/Tarnwick"_s);
    ASSERT_TRUE(running.open(QIODevice::ReadOnly));
    putProgram("second");
    start();
    EXPECT_TRUE(running.readAll().contains("echo first"));
    EXPECT_TRUE(bytes(u"Tarnwick"_s).contains("echo second"));
}

TEST_F(OwnersFolder, WithAShopFromElsewhereGetsNoSample)
{
    QDir().mkpath(folder());
    writeFile(folder() + u"/shop.xml"_s, "mine");
    start();
    EXPECT_EQ(bytes(u"shop.xml"_s), "mine");
    EXPECT_FALSE(QFileInfo::exists(folder() + u"/countries.txt"_s));
}

} // namespace
