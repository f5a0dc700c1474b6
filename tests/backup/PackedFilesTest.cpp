// The bytes themselves: what is written equals the reference files byte for byte, and each reference file is read as
// the format says. A script of its own makes those files, from the tables of the format.
#include "backup/BackUpFixture.h"

#include <QDir>
#include <QFile>

#include <map>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using PackedFilesTest = BackUpTest;

struct Reading
{
    PackedStatus status;
    int entries;
};

// The most address space that this process ever had, in bytes.
qint64 peakOfMemory()
{
    const QByteArray status = fileBytes(u"/proc/self/status"_s);
    const qsizetype at = status.indexOf("VmPeak:");
    return status.mid(at + 7, status.indexOf("kB", at) - at - 7).trimmed().toLongLong() * 1024;
}

const std::map<QString, Reading>& readings()
{
    constexpr PackedStatus same = PackedStatus::SameVersion;
    constexpr PackedStatus older = PackedStatus::OlderVersion;
    constexpr PackedStatus newer = PackedStatus::NewerVersion;
    constexpr PackedStatus bad = PackedStatus::CannotRead;
    static const std::map<QString, Reading> table = {
        {u"current"_s, {same, 3}},
        {u"stored"_s, {same, 3}},
        {u"raw_entry_among_deflated"_s, {same, 3}},
        {u"legacy"_s, {older, 3}},
        {u"older"_s, {older, 3}},
        {u"newer"_s, {newer, 3}},
        {u"version_1_10_0"_s, {older, 3}}, // "1.10.0" stands before "1.2.0"
        {u"stale_tail"_s, {same, 3}},
        {u"no_entries"_s, {same, 0}},
        {u"names_in_utf8"_s, {same, 2}},
        {u"names_in_windows_1252"_s, {same, 2}},
        {u"folders_below_pictures"_s, {same, 2}},
        {u"foreign_paths"_s, {same, 20}},
        {u"shop_in_capitals"_s, {same, 1}},
        {u"flags_of_other_numbers"_s, {same, 2}},
        {u"longer_than_told"_s, {same, 2}},
        {u"too_long_for_its_room"_s, {same, 2}},
        {u"shorter_than_told"_s, {same, 1}},
        {u"not_inflatable"_s, {same, 2}},
        {u"promises_gigabytes"_s, {same, 1}},
        {u"nothing"_s, {bad, 0}},
        {u"cut_in_header"_s, {bad, 0}},
        {u"cut_in_version"_s, {bad, 0}},
        {u"cut_in_entry"_s, {bad, 1}},
        {u"cut_in_last_data"_s, {bad, 2}},
        {u"cut_legacy_header"_s, {bad, 0}},
        {u"count_too_large"_s, {bad, 3}},
        {u"count_largest"_s, {bad, 3}},
        {u"count_below_0"_s, {bad, 0}},
        {u"size_below_0"_s, {bad, 1}},
        {u"deflated_size_below_0"_s, {bad, 1}},
        {u"size_past_the_end"_s, {bad, 1}},
        {u"path_past_the_end"_s, {bad, 1}},
        {u"version_past_the_end"_s, {bad, 0}},
        {u"name_twice"_s, {bad, 2}},
        {u"zeros"_s, {older, 0}}, // a legacy header without entries
        {u"text"_s, {bad, 0}},
    };
    return table;
}

} // namespace

TEST_F(PackedFilesTest, ADeflatedContainerIsWrittenByteForByte)
{
    useReferenceShop();
    packer.setCompressed(true);
    for (const QString& path : {u"shop.xml"_s, u"pictures\\cup.png"_s, u"templates\\main.html"_s}) {
        ASSERT_EQ(packer.AddFile(path), AddFileResult::Added);
    }
    ASSERT_TRUE(packer.WriteFile(files.path(u"out"_s)));
    EXPECT_EQ(fileBytes(files.path(u"out"_s)), referenceBytes(u"current"_s));
}

TEST_F(PackedFilesTest, AStoredContainerIsWrittenByteForByte)
{
    useReferenceShop();
    for (const QString& path : {u"shop.xml"_s, u"pictures\\cup.png"_s, u"templates\\main.html"_s}) {
        ASSERT_EQ(packer.AddFile(path), AddFileResult::Added);
    }
    ASSERT_TRUE(packer.WriteFile(files.path(u"out"_s)));
    EXPECT_EQ(fileBytes(files.path(u"out"_s)), referenceBytes(u"stored"_s));
    // Deflated in memory it is the other one, and back again.
    packer.setCompressed(true);
    ASSERT_TRUE(packer.WriteFile(files.path(u"deflated"_s)));
    EXPECT_EQ(fileBytes(files.path(u"deflated"_s)), referenceBytes(u"current"_s));
    packer.setCompressed(false);
    ASSERT_TRUE(packer.WriteFile(files.path(u"stored"_s)));
    EXPECT_EQ(fileBytes(files.path(u"stored"_s)), referenceBytes(u"stored"_s));
}

TEST_F(PackedFilesTest, NamesAreWrittenInUtf8)
{
    writeFile(files.path(u"shop.xml"_s), referenceShop());
    writeFile(files.path(u"pictures/M\u00FCller \u20AC \u6771.png"_s), referencePicture());
    packer.setCompressed(true);
    packer.AddFile(u"shop.xml"_s);
    packer.AddFile(u"pictures\\M\u00FCller \u20AC \u6771.png"_s);
    ASSERT_TRUE(packer.WriteFile(files.path(u"out"_s)));
    EXPECT_EQ(fileBytes(files.path(u"out"_s)), referenceBytes(u"names_in_utf8"_s));
}

TEST_F(PackedFilesTest, ABackupIsWrittenByteForByte)
{
    useReferenceShop();
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(packer.BackUp(name));
    EXPECT_EQ(fileBytes(files.path(u"backups/may.kvb"_s)), referenceBytes(u"current"_s));
}

TEST_F(PackedFilesTest, EveryReferenceFileIsInTheTable)
{
    QStringList names = QDir(referencePath({})).entryList(QDir::Files);
    names.removeOne(u"make.py"_s);
    for (const QString& name : names) {
        EXPECT_TRUE(readings().contains(name)) << name.toStdString();
    }
    EXPECT_EQ(static_cast<std::size_t>(names.size()), readings().size());
}

TEST_F(PackedFilesTest, EveryReferenceFileHasItsStatusItsEventsAndItsEntries)
{
    for (const auto& [name, reading] : readings()) {
        SCOPED_TRACE(name.toStdString());
        clsPacker reader(files.folder(), prompts, clock, u"1.2.0"_s);
        listenTo(reader);
        EXPECT_EQ(reader.ReadFile(referencePath(name)), reading.status);
        EXPECT_EQ(reader.Count(), reading.entries);
        QStringList expected = {u"Working(False)"_s, u"Working(True)"_s};
        if (reading.status != PackedStatus::SameVersion) {
            expected << u"ReadError(%1)"_s.arg(static_cast<int>(reading.status));
        }
        EXPECT_EQ(takeEvents(), expected);
        EXPECT_EQ(reader.FileSpec, referencePath(name));
    }
}

// Written again, what was read is what was there.
TEST_F(PackedFilesTest, ReadingAndWritingGivesTheSameBytes)
{
    for (const QString& name :
         {u"current"_s, u"stored"_s, u"raw_entry_among_deflated"_s, u"names_in_utf8"_s, u"foreign_paths"_s,
          u"longer_than_told"_s, u"not_inflatable"_s, u"folders_below_pictures"_s}) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_EQ(packer.ReadFile(referencePath(name)), PackedStatus::SameVersion);
        EXPECT_FALSE(packer.Changed());
        const QString out = files.path(name);
        ASSERT_TRUE(packer.WriteFile(out));
        EXPECT_EQ(fileBytes(out), referenceBytes(name));
    }
}

TEST_F(PackedFilesTest, TheEntriesAreThoseOfTheFile)
{
    for (const QString& name : {u"current"_s, u"stored"_s, u"raw_entry_among_deflated"_s, u"legacy"_s, u"older"_s,
                                u"newer"_s, u"stale_tail"_s}) {
        SCOPED_TRACE(name.toStdString());
        packer.ReadFile(referencePath(name));
        ASSERT_EQ(packer.Count(), 3);
        EXPECT_EQ(packer.Item(1).FileSpec(), u"shop.xml"_s);
        EXPECT_EQ(packer.Item(1).ToString(), QString::fromLatin1(referenceShop()));
        EXPECT_EQ(packer.Item(2).FileSpec(), u"pictures\\cup.png"_s);
        EXPECT_EQ(packer.Item(2).Size(), 768);
        EXPECT_EQ(packer.Item(3).FileSpec(), u"templates\\main.html"_s);
        EXPECT_EQ(packer.Item(3).ToString(), QString::fromLatin1(referencePage()));
    }
}

TEST_F(PackedFilesTest, TheFlagOfTheHeaderIsThePackersAndEachEntryHasItsOwn)
{
    packer.ReadFile(referencePath(u"stored"_s));
    EXPECT_FALSE(packer.Compressed());
    packer.ReadFile(referencePath(u"raw_entry_among_deflated"_s));
    EXPECT_TRUE(packer.Compressed());
    EXPECT_TRUE(packer.Item(1).Compressed());
    EXPECT_FALSE(packer.Item(2).Compressed());
    packer.ReadFile(referencePath(u"zeros"_s));
    EXPECT_FALSE(packer.Compressed());
    packer.ReadFile(referencePath(u"legacy"_s)); // its bytes 10 and 11
    EXPECT_TRUE(packer.Compressed());
    packer.ReadFile(referencePath(u"flags_of_other_numbers"_s));
    EXPECT_TRUE(packer.Compressed());
    EXPECT_EQ(packer.Item(1).ToString(), QString::fromLatin1(referenceShop()));
    EXPECT_EQ(packer.Item(2).ToString(), u"cup"_s);
}

TEST_F(PackedFilesTest, NamesAreReadInUtf8OrElseInWindows1252)
{
    packer.ReadFile(referencePath(u"names_in_utf8"_s));
    EXPECT_EQ(packer.Item(2).FileSpec(), u"pictures\\M\u00FCller \u20AC \u6771.png"_s);
    packer.ReadFile(referencePath(u"names_in_windows_1252"_s));
    EXPECT_EQ(packer.Item(2).FileSpec(), u"pictures\\M\u00FCller \u20AC.png"_s);
}

TEST_F(PackedFilesTest, VersionsAreComparedAsTexts)
{
    const struct
    {
        QByteArray file;
        QString program;
        PackedStatus status;
    } cases[] = {
        {"1.2.0", u"1.2.0"_s, PackedStatus::SameVersion},   {"1.10.0", u"1.9.0"_s, PackedStatus::OlderVersion},
        {"1.9.0", u"1.10.0"_s, PackedStatus::NewerVersion}, {"1.2.0", u"1.2.1"_s, PackedStatus::OlderVersion},
        {"1.2.1", u"1.2.0"_s, PackedStatus::NewerVersion},  {"1.2", u"1.2.0"_s, PackedStatus::OlderVersion},
        {"1.2.0 ", u"1.2.0"_s, PackedStatus::NewerVersion}, {"01.2.0", u"1.2.0"_s, PackedStatus::OlderVersion},
        {"beta", u"1.2.0"_s, PackedStatus::NewerVersion},   {"BETA", u"beta"_s, PackedStatus::OlderVersion},
        {"\xFC", u"z"_s, PackedStatus::NewerVersion},
    };
    for (const auto& pair : cases) {
        SCOPED_TRACE(pair.file.toStdString());
        clsPacker reader(files.folder(), prompts, clock, pair.program);
        QByteArray bytes = QByteArray(8, '\0') + static_cast<char>(pair.file.size()) + '\0' + pair.file;
        bytes += QByteArray(2, '\0');
        EXPECT_EQ(reader.ReadFile(packedFile(bytes)), pair.status);
    }
}

TEST_F(PackedFilesTest, AVersionLengthOf0IsTheLegacyFormWithEntriesFrom14)
{
    QByteArray legacy = referenceBytes(u"legacy"_s);
    EXPECT_EQ(packer.ReadFile(packedFile(legacy)), PackedStatus::OlderVersion);
    ASSERT_EQ(packer.Count(), 3);
    // The last two bytes of the header are looked at by nobody.
    legacy[12] = legacy[13] = 'x';
    EXPECT_EQ(packer.ReadFile(packedFile(legacy)), PackedStatus::OlderVersion);
    EXPECT_EQ(packer.Count(), 3);
    // With entries from 12 on, what is read is not what was meant.
    packer.ReadFile(packedFile(QByteArray(legacy).remove(12, 2)));
    EXPECT_EQ(packer.Count(), 0);
}

TEST_F(PackedFilesTest, TheFirstFourBytesAreNeverLookedAt)
{
    QByteArray bytes = referenceBytes(u"current"_s);
    bytes.replace(0, 4, "KVB!");
    EXPECT_EQ(packer.ReadFile(packedFile(bytes)), PackedStatus::SameVersion);
    EXPECT_EQ(packer.Count(), 3);
}

TEST_F(PackedFilesTest, ASmallerContentLeavesTheTailOfALongerOldFile)
{
    useReferenceShop();
    const QString path = files.path(u"out"_s);
    const QByteArray old(5000, 'o');
    writeFile(path, old);
    packer.setCompressed(true);
    packer.AddFile(u"shop.xml"_s);
    ASSERT_TRUE(packer.WriteFile(path));
    const QByteArray bytes = fileBytes(path);
    ASSERT_EQ(bytes.size(), old.size());
    const qsizetype content = 17 + 2 + 2 + 8 + 4 + 4 + packer.Item(1).CompressedSize();
    EXPECT_EQ(bytes.sliced(content), old.sliced(content));
    EXPECT_NE(bytes.at(content - 1), 'o');
    EXPECT_EQ(packer.ReadFile(path), PackedStatus::SameVersion);
    EXPECT_EQ(packer.Count(), 1);
}

TEST_F(PackedFilesTest, WhereverAFileIsCutItCannotBeReadAndTheEntriesSoFarStay)
{
    const QByteArray whole = referenceBytes(u"current"_s);
    int entriesBefore = 0;
    for (qsizetype size = 0; size < whole.size(); ++size) {
        clsPacker reader(files.folder(), prompts, clock, u"1.2.0"_s);
        listenTo(reader);
        EXPECT_EQ(reader.ReadFile(packedFile(whole.first(size))), PackedStatus::CannotRead) << size;
        EXPECT_EQ(takeEvents(), (QStringList{u"Working(False)"_s, u"Working(True)"_s, u"ReadError(2)"_s}));
        EXPECT_TRUE(reader.Count() == entriesBefore || reader.Count() == entriesBefore + 1);
        entriesBefore = reader.Count();
    }
    EXPECT_EQ(entriesBefore, 2);
}

TEST_F(PackedFilesTest, APathThatIsEmptyOrLeadsToNoFileIsToldTwice)
{
    for (const QString& path : {QString(), files.path(u"gone"_s), files.path(u"pictures"_s), u"/dev/null"_s,
                                QString(files.path(u"a"_s) + QChar(0) + u"b"_s)}) {
        SCOPED_TRACE(path.toStdString());
        clsPacker reader(files.folder(), prompts, clock, u"1.2.0"_s);
        listenTo(reader);
        reader.Add(u"kept"_s);
        EXPECT_EQ(reader.ReadFile(path), PackedStatus::CannotRead);
        EXPECT_EQ(takeEvents(),
                  (QStringList{u"ReadError(3)"_s, u"Working(False)"_s, u"Working(True)"_s, u"ReadError(2)"_s}));
        EXPECT_EQ(reader.FileSpec, path);
        // Nothing was read, so nothing was taken away either.
        EXPECT_EQ(reader.Count(), 1);
    }
}

TEST_F(PackedFilesTest, ReadingReplacesWhatWasHeld)
{
    packer.Add(u"before"_s);
    packer.ReadFile(referencePath(u"current"_s));
    EXPECT_EQ(packer.Count(), 3);
    EXPECT_EQ(errorOf([&] { packer.Item(u"before"_s); }), 5);
    packer.ReadFile(referencePath(u"no_entries"_s));
    EXPECT_EQ(packer.Count(), 0);
    EXPECT_FALSE(packer.Changed());
}

TEST_F(PackedFilesTest, ANameThatOccursTwiceLeavesTheFirst)
{
    EXPECT_EQ(packer.ReadFile(referencePath(u"name_twice"_s)), PackedStatus::CannotRead);
    EXPECT_EQ(packer.Item(u"pictures\\a"_s).ToString(), u"first"_s);
}

TEST_F(PackedFilesTest, LengthsThatAreNotThereTakeNoMemory)
{
    for (const QString& name :
         {u"size_past_the_end"_s, u"count_largest"_s, u"path_past_the_end"_s, u"shorter_than_told"_s}) {
        // In a process of its own, whose peak no other test has raised.
        const pid_t child = fork();
        if (child == 0) {
            const qint64 before = peakOfMemory();
            packer.ReadFile(referencePath(name));
            packer.setCompressed(!packer.Compressed());
            _exit(peakOfMemory() - before < 100'000'000 ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << name.toStdString();
    }
}
