#include "base/TextFile.h"

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

// No file of this process grows past that size while an object of this lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler); // NOLINT(cert-err33-c)
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

} // namespace

TEST(TextFile, ValidUtf8IsReadAsSuch)
{
    const DecodedText decoded = decodeText("M\xC3\xBCll \xE2\x82\xAC \xF0\x9F\x98\x80");
    EXPECT_EQ(decoded.text, u"M\u00FCll \u20AC \U0001F600"_s);
    EXPECT_EQ(decoded.encoding, TextEncoding::Utf8);
    EXPECT_EQ(decodeText("plain").encoding, TextEncoding::Utf8);
    EXPECT_EQ(decodeText("").text, QString());
    EXPECT_EQ(decodeText(QByteArray("a\0b", 3)).text, QString(u"a"_s + QChar(0) + u"b"_s));
}

TEST(TextFile, OneByteOrderMarkIsDropped)
{
    EXPECT_EQ(decodeText("\xEF\xBB\xBFtext").text, u"text"_s);
    EXPECT_EQ(decodeText("\xEF\xBB\xBF").text, QString());
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\xEF\xBB\xBFx").text, u"\uFEFFx"_s);
    EXPECT_EQ(decodeText("a\xEF\xBB\xBF").text, u"a\uFEFF"_s);
}

TEST(TextFile, WhatIsNotUtf8IsWindows1252)
{
    const QByteArray invalid[] = {
        "\x80",             // a continuation byte alone
        "\xC3",             // cut off
        "\xC3(",            // not continued
        "\xC0\xAF",         // overlong
        "\xC1\xBF",         // overlong
        "\xE0\x9F\xBF",     // overlong
        "\xF0\x8F\xBF\xBF", // overlong
        "\xED\xA0\x80",     // a surrogate
        "\xED\xBF\xBF",     // a surrogate
        "\xF4\x90\x80\x80", // past U+10FFFF
        "\xF5\x80\x80\x80",
        "\xFE",
        "\xFF",
        "\xE2\x82",
        "\xF0\x9F\x98",
        "\xE2(\xAC",
        "\xF0\x9F(\x80",
    };
    for (const QByteArray& bytes : invalid) {
        for (const QByteArray& text : {bytes, QByteArray("some eight letters " + bytes), QByteArray(bytes + " text")}) {
            const DecodedText decoded = decodeText(text);
            EXPECT_EQ(decoded.encoding, TextEncoding::Windows1252) << text.toHex().toStdString();
            EXPECT_EQ(decoded.text.size(), text.size());
        }
    }
    const QByteArray valid[] = {"\xC2\x80",     "\xDF\xBF",     "\xE0\xA0\x80",     "\xED\x9F\xBF",
                                "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"};
    for (const QByteArray& bytes : valid) {
        EXPECT_EQ(decodeText(bytes).encoding, TextEncoding::Utf8) << bytes.toHex().toStdString();
    }
}

TEST(TextFile, EveryByteOfWindows1252HasItsLetter)
{
    EXPECT_EQ(decodeText("M\xFCll \x80 \x93x\x94 \x9F").text, u"M\u00FCll \u20AC \u201Cx\u201D \u0178"_s);
    EXPECT_EQ(decodeText("\x81\x8D\x8F\x90\x9D\xFF").text, u"\u0081\u008D\u008F\u0090\u009D\u00FF"_s);
}

TEST(TextFile, NoByteOfWindows1252IsLost)
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.append(static_cast<char>(i));
    }
    const DecodedText decoded = decodeText(bytes);
    ASSERT_EQ(decoded.encoding, TextEncoding::Windows1252);
    ASSERT_EQ(decoded.text.size(), 256);
    EXPECT_EQ(encodeText(decoded.text, decoded.encoding), bytes);
    for (const QChar letter : decoded.text) {
        EXPECT_EQ(decoded.text.count(letter), 1);
    }
}

TEST(TextFile, ATextThatWindows1252CannotHoldIsWrittenInUtf8)
{
    EXPECT_EQ(encodeText(u"\u00FC\u20AC"_s, TextEncoding::Windows1252), "\xFC\x80");
    EXPECT_EQ(encodeText(u"\u00FC\u0436"_s, TextEncoding::Windows1252), "\xC3\xBC\xD0\xB6");
    EXPECT_EQ(encodeText(u"\u00FC\u20AC"_s, TextEncoding::Utf8), "\xC3\xBC\xE2\x82\xAC");
}

TEST(TextFile, AFileIsReadWhole)
{
    const TemporaryShopFolder shop;
    for (const qsizetype size : {0, 1, 4096, 1000000}) {
        const QByteArray bytes(size, 'x');
        WriteFile(shop.path(u"file"_s), bytes);
        EXPECT_EQ(readFileBytes(shop.path(u"file"_s)), bytes);
    }
    WriteFile(shop.path(u"text"_s), "\xEF\xBB\xBF\xC3\xBC\r\n");
    EXPECT_EQ(readTextFile(shop.path(u"text"_s)).text, u"\u00FC\r\n"_s);
}

TEST(TextFile, AFileThatCannotBeReadIsAnErrorThatNamesIt)
{
    const TemporaryShopFolder shop;
    WriteFile(shop.path(u"file"_s), "x");
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"gone"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"gone/file"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"file/file"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(QString()); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(QString(shop.path(u"file"_s) + QChar(0) + u"x"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(QString(5000, u'x'))); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"templates"_s)); }), 75);
    EXPECT_EQ(errorOf([&] { readTextFile(u"/dev/zero"_s); }), 75);
    try {
        readFileBytes(shop.path(u"gone"_s));
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.description().contains(shop.path(u"gone"_s))) << error.what();
    }
}

TEST(TextFile, APipeInTheWayDoesNotKeepTheProgramWaiting)
{
    const TemporaryShopFolder shop;
    const QString pipe = shop.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(errorOf([&] { readFileBytes(pipe); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(pipe, "x"); }), 75);
    EXPECT_EQ(errorOf([&] { appendFileBytes(pipe, "x"); }), 75);
}

TEST(TextFile, AReadThatFailsIsADeviceError)
{
    // Reading the first page of one's own memory fails after the file was opened.
    EXPECT_EQ(errorOf([] { readFileBytes(u"/proc/self/mem"_s); }), 57);
}

TEST(TextFile, WritingReplacesTheContent)
{
    const TemporaryShopFolder shop;
    const QString path = shop.path(u"file"_s);
    for (const QByteArray& bytes :
         {QByteArray("first"), QByteArray(100000, 'x'), QByteArray("shorter"), QByteArray()}) {
        writeFileBytes(path, bytes);
        EXPECT_EQ(fileBytes(path), bytes);
    }
}

TEST(TextFile, WritingKeepsTheFileItselfAndMakesNoOther)
{
    const TemporaryShopFolder shop;
    const QString path = shop.path(u"templates/file"_s);
    WriteFile(path, "old");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    ASSERT_TRUE(QFile::link(u"file"_s, shop.path(u"templates/link"_s)));
    writeFileBytes(shop.path(u"templates/link"_s), "the new content");
    EXPECT_EQ(fileBytes(path), "the new content");
    EXPECT_TRUE(QFileInfo(path).permissions().testFlag(QFile::ExeOwner));
    EXPECT_EQ(QDir(shop.path(u"templates"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{u"file"_s, u"link"_s}));
}

TEST(TextFile, WithoutRoomTheOldFileStaysWhole)
{
    const TemporaryShopFolder shop;
    const QString path = shop.path(u"shop.xml"_s);
    const QByteArray old(10000, 'o');
    WriteFile(path, old);
    const FileSizeLimit limit(20000);
    EXPECT_EQ(errorOf([&] { writeFileBytes(path, QByteArray(20001, 'n')); }), 61);
    EXPECT_EQ(fileBytes(path), old);
    EXPECT_EQ(errorOf([&] { writeFileBytes(path, QByteArray(20000, 'n')); }), 0);
    EXPECT_EQ(fileBytes(path), QByteArray(20000, 'n'));
}

TEST(TextFile, WithoutRoomANewFileIsNotLeftBehind)
{
    const TemporaryShopFolder shop;
    const FileSizeLimit limit(1000);
    EXPECT_EQ(errorOf([&] { writeFileBytes(shop.path(u"new"_s), QByteArray(1001, 'n')); }), 61);
    EXPECT_FALSE(QFile::exists(shop.path(u"new"_s)));
}

TEST(TextFile, WithoutRoomAppendingIsAnError)
{
    const TemporaryShopFolder shop;
    WriteFile(shop.path(u"log"_s), "12345");
    const FileSizeLimit limit(5);
    EXPECT_EQ(errorOf([&] { appendFileBytes(shop.path(u"log"_s), "6"); }), 61);
    EXPECT_EQ(fileBytes(shop.path(u"log"_s)), "12345");
}

TEST(TextFile, AFileThatCannotBeWrittenIsAnError)
{
    const TemporaryShopFolder shop;
    EXPECT_EQ(errorOf([&] { writeFileBytes(shop.path(u"templates"_s), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(shop.path(u"gone/file"_s), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(QString(), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(QString(shop.path(u"file"_s) + QChar(0)), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(u"/dev/null"_s, "x"); }), 75);
    // A running program is locked against writing, even for root.
    EXPECT_EQ(errorOf([&] { writeFileBytes(u"/proc/self/exe"_s, "x"); }), 70);
    EXPECT_EQ(errorOf([&] { appendFileBytes(u"/proc/self/exe"_s, "x"); }), 70);
}

TEST(TextFile, AppendingMakesTheFileAndAddsToIt)
{
    const TemporaryShopFolder shop;
    appendFileBytes(shop.path(u"log"_s), "one ");
    appendFileBytes(shop.path(u"log"_s), "two");
    EXPECT_EQ(fileBytes(shop.path(u"log"_s)), "one two");
}
