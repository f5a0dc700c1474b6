#include "backup/clsFileData.h"

#include "backup/BackUpFixture.h"

#include <QFile>

#include <sys/stat.h>
#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

// An entry as it stands in a packed file, put together here from the table of its fields.
QByteArray entryBytes(const QByteArray& path, qint16 flag, qint32 size, qint32 deflatedSize, const QByteArray& data)
{
    QByteArray bytes;
    const auto number = [&bytes](quint32 value, int width) {
        for (int i = 0; i < width; ++i) {
            bytes.append(static_cast<char>(value >> (8 * i)));
        }
    };
    number(static_cast<quint16>(flag), 2);
    number(static_cast<quint32>(path.size()), 2);
    bytes += path;
    number(static_cast<quint32>(size), 4);
    number(static_cast<quint32>(deflatedSize), 4);
    return bytes + data;
}

QByteArray deflated(const QByteArray& plain)
{
    uLongf length = compressBound(static_cast<uLong>(plain.size()));
    QByteArray out(static_cast<qsizetype>(length), '\0');
    EXPECT_EQ(compress(reinterpret_cast<Bytef*>(out.data()), &length, reinterpret_cast<const Bytef*>(plain.constData()),
                       static_cast<uLong>(plain.size())),
              Z_OK);
    out.truncate(static_cast<qsizetype>(length));
    return out;
}

QByteArray deflatedEntry(const QByteArray& path, const QByteArray& plain, qint32 toldSize)
{
    const QByteArray stream = deflated(plain);
    return entryBytes(path, -1, toldSize, static_cast<qint32>(stream.size()), stream);
}

class FileDataTest : public BackUpTest
{
protected:
    bool readFrom(const QByteArray& bytes)
    {
        PackedStream stream(packedFile(bytes), PackedStream::Mode::Read);
        return entry.ReadFromPackedFile(stream);
    }

    // What WriteToPackedFile writes.
    QByteArray written()
    {
        const QString path = files.path(u"written"_s);
        QFile::remove(path);
        PackedStream stream(path, PackedStream::Mode::Write);
        EXPECT_TRUE(entry.WriteToPackedFile(stream));
        return fileBytes(path);
    }

    QByteArray putOut()
    {
        const QString path = files.path(u"put"_s);
        QFile::remove(path);
        PackedStream stream(path, PackedStream::Mode::Write);
        entry.PutDataToFile(stream);
        return fileBytes(path);
    }

    clsFileData entry{files.folder()};
};

} // namespace

TEST_F(FileDataTest, ANewEntryIsEmpty)
{
    EXPECT_EQ(entry.Key(), QString());
    EXPECT_EQ(entry.FileSpec(), QString());
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.Size(), 0);
    EXPECT_EQ(entry.CompressedSize(), 0);
    EXPECT_EQ(entry.ErrorCode(), 0);
    EXPECT_EQ(entry.ToString(), QString());
}

TEST_F(FileDataTest, NamesAreCutFromThePath)
{
    const struct
    {
        QString path;
        QString parent;
        QString name;
        QString extension;
    } cases[] = {
        {u"shop.xml"_s, u""_s, u"shop.xml"_s, u".xml"_s},
        {u"pictures\\cup.big.png"_s, u"pictures\\"_s, u"cup.big.png"_s, u".png"_s},
        {u"a\\b\\c"_s, u"a\\b\\"_s, u"c"_s, u""_s},
        {u"a\\"_s, u"a\\"_s, u""_s, u""_s},
        {u"c:name.txt"_s, u"c:\\"_s, u"c:name.txt"_s, u".txt"_s},
        {u"c:d:name"_s, u"c:d:\\"_s, u"c:d:name"_s, u""_s},
        {u"c:\\name"_s, u"c:\\"_s, u"name"_s, u""_s},
        {u"pictures/cup"_s, u""_s, u"pictures/cup"_s, u""_s},
        {u"a.b\\c"_s, u"a.b\\"_s, u"c"_s, u".b\\c"_s},
        {u"end."_s, u""_s, u"end."_s, u"."_s},
        {u""_s, u""_s, u""_s, u""_s},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.path.toStdString());
        entry.setKey(expected.path);
        EXPECT_EQ(entry.Key(), expected.path);
        EXPECT_EQ(entry.FileSpec(), expected.path);
        EXPECT_EQ(entry.ParentFolder(), expected.parent);
        EXPECT_EQ(entry.FileName(), expected.name);
        EXPECT_EQ(entry.Extension(), expected.extension);
    }
}

TEST_F(FileDataTest, SizesForPeopleAreBytesUpTo1023AndKilobytesFrom1024)
{
    const struct
    {
        qint32 size;
        QString text;
    } cases[] = {
        {0, u"0 bytes"_s},
        {1, u"1 byte"_s},
        {2, u"2 bytes"_s},
        {1023, u"1023 bytes"_s},
        {1024, localised(u"1. Kb"_s) + u"."_s},
        {1074, localised(u"1. Kb"_s) + u"."_s},  // 1.0488
        {1076, localised(u"1.1 Kb"_s) + u"."_s}, // 1.0508
        {1280, localised(u"1.3 Kb"_s) + u"."_s}, // 1.25, a half goes up
        {1536, localised(u"1.5 Kb"_s) + u"."_s},
        {2047, localised(u"2. Kb"_s) + u"."_s},
        {1048576, localised(u"1024. Kb"_s) + u"."_s},
        {2147483647, localised(u"2097152. Kb"_s) + u"."_s},
    };
    for (const auto& expected : cases) {
        // A deflated entry may claim any size.
        ASSERT_TRUE(readFrom(entryBytes("a", -1, expected.size, 0, {})));
        EXPECT_EQ(entry.SizeString(), expected.text);
    }
}

TEST_F(FileDataTest, TheDeflatedSizeOfAStoredEntryIsNotAvailable)
{
    ASSERT_TRUE(readFrom(entryBytes("a", 0, 5, 0, "12345")));
    EXPECT_EQ(entry.SizeString(), u"5 bytes"_s);
    EXPECT_EQ(entry.CompressedSizeString(), u"n/a"_s);
    ASSERT_TRUE(readFrom(entryBytes("a", -1, 5, 1536, QByteArray(1536, 'x'))));
    EXPECT_EQ(entry.CompressedSizeString(), QString(localised(u"1.5 Kb"_s) + u"."_s));
}

TEST_F(FileDataTest, LoadReadsAFileOfTheApplicationFolder)
{
    writeFile(files.path(u"pictures/cup.png"_s), "12345");
    ASSERT_TRUE(entry.Load(u"pictures\\cup.png"_s, false));
    EXPECT_EQ(entry.FileSpec(), u"pictures\\cup.png"_s);
    EXPECT_EQ(entry.Size(), 5);
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.CompressedSize(), 0);
    EXPECT_EQ(written(), entryBytes("pictures\\cup.png", 0, 5, 0, "12345"));
}

TEST_F(FileDataTest, LoadDeflatesWhenAskedTo)
{
    const QByteArray plain = referencePage();
    writeFile(files.path(u"shop.xml"_s), plain);
    ASSERT_TRUE(entry.Load(u"shop.xml"_s, true));
    EXPECT_TRUE(entry.Compressed());
    EXPECT_EQ(entry.Size(), plain.size());
    EXPECT_EQ(entry.CompressedSize(), deflated(plain).size());
    EXPECT_EQ(entry.ErrorCode(), 0);
    EXPECT_EQ(written(), deflatedEntry("shop.xml", plain, static_cast<qint32>(plain.size())));
}

TEST_F(FileDataTest, AFileThatIsNotThereOrEmptyOrNoFileCannotBeLoaded)
{
    writeFile(files.path(u"empty"_s), {});
    ASSERT_EQ(mkfifo(QFile::encodeName(files.path(u"pipe"_s)).constData(), 0600), 0);
    for (const QString& path : {u"empty"_s, u"gone"_s, u"pictures"_s, u"pictures\\gone"_s, u""_s, u"pipe"_s}) {
        EXPECT_FALSE(entry.Load(path, true)) << path.toStdString();
        EXPECT_EQ(entry.FileSpec(), path);
    }
}

TEST_F(FileDataTest, AFileTooLargeForItsSizeFieldCannotBeLoaded)
{
    QFile large(files.path(u"large"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly));
    ASSERT_TRUE(large.resize(qint64{1} << 31)); // takes no room on the disk
    EXPECT_FALSE(entry.Load(u"large"_s, false));
}

TEST_F(FileDataTest, AnIncompressibleFileIsStoredDeflatedAndLarger)
{
    const QByteArray plain = noise(1000, 1);
    writeFile(files.path(u"noise"_s), plain);
    ASSERT_TRUE(entry.Load(u"noise"_s, true));
    EXPECT_TRUE(entry.Compressed());
    EXPECT_EQ(entry.CompressedSize(), deflated(plain).size());
    EXPECT_GT(entry.CompressedSize(), entry.Size());
    EXPECT_EQ(putOut(), plain);
}

TEST_F(FileDataTest, ChangingCompressedDeflatesAndInflatesTheBytesInMemory)
{
    const QByteArray plain = referencePage();
    writeFile(files.path(u"a"_s), plain);
    ASSERT_TRUE(entry.Load(u"a"_s, false));
    entry.setCompressed(true);
    EXPECT_TRUE(entry.Compressed());
    EXPECT_EQ(entry.CompressedSize(), deflated(plain).size());
    const QByteArray once = written();
    entry.setCompressed(true);
    EXPECT_TRUE(entry.CompressData()); // deflated once is enough
    EXPECT_EQ(written(), once);
    entry.setCompressed(false);
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.CompressedSize(), 0);
    EXPECT_EQ(entry.Size(), plain.size());
    EXPECT_EQ(written(), entryBytes("a", 0, static_cast<qint32>(plain.size()), 0, plain));
}

// The size told, and the longest content that the room computed from it lets through. The room is S * 0.01 + S + 12,
// halves going to the even number.
TEST_F(FileDataTest, InflatingStopsAtTheRoomOfTheSizeTold)
{
    const struct
    {
        qint32 told;
        qint32 room;
    } cases[] = {
        {0, 12},      {1, 13},         {49, 61},         {50, 62},         {51, 64},         {100, 113},   {149, 162},
        {150, 164},   {250, 264},      {350, 366},       {450, 466},       {1000, 1022},     {1050, 1072}, {1150, 1174},
        {1234, 1258}, {99950, 100962}, {100000, 101012}, {100050, 101062}, {123456, 124703},
    };
    for (const auto& limit : cases) {
        SCOPED_TRACE(limit.told);
        ASSERT_TRUE(readFrom(deflatedEntry("a", QByteArray(limit.room, 'x'), limit.told)));
        entry.setCompressed(false);
        EXPECT_FALSE(entry.Compressed());
        EXPECT_EQ(entry.ErrorCode(), Z_OK);
        EXPECT_EQ(entry.Size(), limit.room); // what came out, not what was told

        ASSERT_TRUE(readFrom(deflatedEntry("a", QByteArray(limit.room + 1, 'x'), limit.told)));
        entry.setCompressed(false);
        EXPECT_TRUE(entry.Compressed());
        EXPECT_EQ(entry.ErrorCode(), Z_BUF_ERROR);
        EXPECT_EQ(entry.Size(), limit.told);
    }
}

TEST_F(FileDataTest, ASizeThatIsTooLargeDoesNoHarm)
{
    ASSERT_TRUE(readFrom(deflatedEntry("a", QByteArray(5000000, '\0'), 2147483647)));
    entry.setCompressed(false);
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.Size(), 5000000);
    ASSERT_TRUE(readFrom(deflatedEntry("a", "x", 2147483647)));
    EXPECT_EQ(entry.ToString(), u"x"_s);
    ASSERT_TRUE(readFrom(deflatedEntry("a", "", 2147483647)));
    entry.setCompressed(false);
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.Size(), 0);
}

TEST_F(FileDataTest, WhatCannotBeInflatedStaysAsItIs)
{
    const QByteArray stream = deflated(referencePage());
    QByteArray damaged = stream;
    damaged[damaged.size() - 1] ^= 1; // the checksum at the end
    const struct
    {
        QByteArray data;
        int error;
    } cases[] = {
        {"not a stream", Z_DATA_ERROR},
        {damaged, Z_DATA_ERROR},
        {stream.chopped(1), Z_DATA_ERROR},
        {QByteArray(), Z_DATA_ERROR},
    };
    for (const auto& bad : cases) {
        const QByteArray bytes = entryBytes("a", -1, 2000, static_cast<qint32>(bad.data.size()), bad.data);
        ASSERT_TRUE(readFrom(bytes));
        entry.setCompressed(false);
        EXPECT_EQ(entry.ErrorCode(), bad.error);
        EXPECT_TRUE(entry.Compressed());
        EXPECT_EQ(entry.ToString(), QString());
        EXPECT_EQ(written(), bytes);
        // The deflated bytes themselves are written then, and nothing is said.
        EXPECT_EQ(putOut(), bad.data);
        EXPECT_EQ(written(), bytes);
    }
}

TEST_F(FileDataTest, PuttingOutInflatesTheEntryItself)
{
    const QByteArray plain = referencePage();
    ASSERT_TRUE(readFrom(deflatedEntry("a", plain, 1000)));
    EXPECT_EQ(putOut(), plain);
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.CompressedSize(), 0);
    EXPECT_EQ(entry.Size(), plain.size());
    EXPECT_EQ(putOut(), plain);
}

TEST_F(FileDataTest, DataIsPutAtTheFilesPosition)
{
    ASSERT_TRUE(readFrom(deflatedEntry("a", "plain", 5)));
    const QString path = files.path(u"put"_s);
    writeFile(path, "0123456789");
    {
        PackedStream stream(path, PackedStream::Mode::Write);
        stream.write("ab");
        entry.PutDataToFile(stream);
    }
    EXPECT_EQ(fileBytes(path), "abplain789");
}

TEST_F(FileDataTest, TheTextOfAnEntryHasOneCharacterForEachByte)
{
    const QByteArray plain = "M\xFCller \x80 \xC3\xBC";
    ASSERT_TRUE(readFrom(entryBytes("a", 0, static_cast<qint32>(plain.size()), 0, plain)));
    EXPECT_EQ(entry.ToString(), u"M\u00FCller \u20AC \u00C3\u00BC"_s);
    ASSERT_TRUE(readFrom(deflatedEntry("a", plain, 10)));
    EXPECT_EQ(entry.ToString(), u"M\u00FCller \u20AC \u00C3\u00BC"_s);
    EXPECT_TRUE(entry.Compressed()); // inflated into a temporary
}

TEST_F(FileDataTest, AnEntryThatCannotBeReadChangesNothing)
{
    const QByteArray good = deflatedEntry("name", referencePage(), 900);
    ASSERT_TRUE(readFrom(good));
    const QByteArray next = deflatedEntry("other", referencePicture(), 768);
    for (qsizetype size = 0; size < next.size(); ++size) {
        EXPECT_FALSE(readFrom(next.first(size))) << size;
        EXPECT_EQ(written(), good);
    }
    EXPECT_FALSE(readFrom(entryBytes("a", 0, -1, 0, "12345")));
    EXPECT_FALSE(readFrom(entryBytes("a", -1, 5, -1, "12345")));
    EXPECT_FALSE(readFrom(entryBytes("a", 0, 5, -2147483647 - 1, "12345")));
    EXPECT_FALSE(readFrom(entryBytes("a", 0, 2147483647, 0, "12345")));
    EXPECT_FALSE(readFrom(entryBytes("a", -1, 5, 2147483647, "12345")));
    EXPECT_EQ(written(), good);
    EXPECT_TRUE(readFrom(next));
    EXPECT_EQ(written(), next);
}

TEST_F(FileDataTest, APathTooLongForItsLengthFieldCannotBeWritten)
{
    const QString path = files.path(u"written"_s);
    PackedStream stream(path, PackedStream::Mode::Write);
    entry.setKey(QString(65535, u'x'));
    EXPECT_TRUE(entry.WriteToPackedFile(stream));
    EXPECT_EQ(fileBytes(path).size(), 65535 + 12);
    entry.setKey(QString(32768, u'\u00FC')); // 65,536 bytes
    EXPECT_FALSE(entry.WriteToPackedFile(stream));
    EXPECT_EQ(fileBytes(path).size(), 65535 + 12);
}
