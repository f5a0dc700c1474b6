// A finished backup is on the disk before anybody is told that it is finished.
#include "backup/BackUpFixture.h"
#include "support/RecordingFileCalls.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class DurableBackUp : public BackUpTest
{
protected:
    DurableBackUp()
    {
        useReferenceShop();
        listenTo(durable);
    }

    const std::shared_ptr<RecordingFileCalls> calls = std::make_shared<RecordingFileCalls>();
    clsPacker durable{files.folder(), prompts, clock, u"1.2.0"_s, calls};
};

} // namespace

TEST_F(DurableBackUp, ANewBackupIsFlushedAndItsFolderToo)
{
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(durable.BackUp(name));
    const QStringList made = calls->takeCalls();
    EXPECT_EQ(made.first(), u"create may.kvb"_s);
    EXPECT_EQ(made.last(3), (QStringList{u"flush"_s, u"close"_s, u"flush folder backups"_s}));
    EXPECT_EQ(made.count(u"flush"_s), 1);
}

TEST_F(DurableBackUp, AnOverwrittenBackupIsFlushedAndKeepsItsOldTail)
{
    writeFile(files.path(u"backups.kvb"_s), QByteArray(100000, 'o'));
    durable.setCompressed(true);
    ASSERT_EQ(durable.AddFile(u"shop.xml"_s), AddFileResult::Added);
    ASSERT_TRUE(durable.WriteFile(files.path(u"backups.kvb"_s)));
    const QStringList made = calls->takeCalls();
    EXPECT_EQ(made.first(), u"overwrite backups.kvb"_s);
    EXPECT_EQ(made.last(2), (QStringList{u"flush"_s, u"close"_s}));
    EXPECT_EQ(QFile(files.path(u"backups.kvb"_s)).size(), 100000);
}

TEST_F(DurableBackUp, RoomIsMadeSureOfBeforeABackupIsOverwrittenAndTheCountIsWrittenLast)
{
    const QString path = files.path(u"may.kvb"_s);
    writeFile(path, "old");
    ASSERT_EQ(durable.AddFile(u"pictures\\cup.png"_s), AddFileResult::Added);
    calls->failAtCall(u"reserve"_s, ErrorNumber::DiskFull);
    EXPECT_FALSE(durable.WriteFile(path));
    EXPECT_EQ(calls->takeCalls().last(), u"reserve 3 to 813"_s);
    EXPECT_EQ(fileBytes(path), "old");

    calls->failAtCall(u"no call"_s, ErrorNumber::DiskFull);
    EXPECT_TRUE(durable.WriteFile(path));
    // The header is 17 bytes, the entry's 28, the picture 768.
    EXPECT_EQ(calls->takeCalls(),
              (QStringList{u"overwrite may.kvb"_s, u"reserve 3 to 813"_s, u"write 17"_s, u"write 28"_s, u"write 768"_s,
                           u"seek 0"_s, u"write 17"_s, u"flush"_s, u"close"_s}));
    EXPECT_EQ(QFile(path).size(), 813);
}

TEST_F(DurableBackUp, ABackupThatCannotBeFlushedIsAFailureToWrite)
{
    for (const QString& call : {u"flush"_s, u"close"_s, u"flush folder"_s}) {
        SCOPED_TRACE(call.toStdString());
        QFile::remove(files.path(u"backups/may.kvb"_s));
        calls->failAtCall(call, ErrorNumber::DeviceError);
        QString name = u"may"_s;
        EXPECT_FALSE(durable.BackUp(name));
        EXPECT_EQ(takeEvents().count(u"WriteError"_s), 2);
        durable.Clear();
    }
}
