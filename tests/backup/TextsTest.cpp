// What backup and restore say, letter for letter, in the order in which it is said, and that a failure changes nothing.
#include "backup/BackUpCommands.h"
#include "backup/BackUpFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Box
{
    QString title;
    QString text;
    PromptIcon icon;
};

class BackUpTexts : public BackUpTest
{
protected:
    BackUpTexts() { useReferenceShop(); }

    // Each scene has its own prompts, all of which must have been shown by its end.
    void backUp(const QString& name, const std::vector<Box>& boxes)
    {
        RecordingPrompts scene;
        scene.answerText(u"Backing up"_s, u"Enter file name"_s, name);
        expect(boxes, scene);
        backUpFromMenu({folder, scene, clock, log, u"The program"_s});
    }
    bool restore(const QString& file, const std::vector<Box>& boxes)
    {
        RecordingPrompts scene;
        scene.answerFile(file);
        expect(boxes, scene);
        return restoreFromMenu({folder, scene, clock, log, u"The program"_s}, [] {});
    }
    void makeFreshShop()
    {
        remove(u"backups"_s);
        QDir().mkpath(files.path(u"templates"_s));
        QDir().mkpath(files.path(u"pictures"_s));
        useReferenceShop();
    }
    void remove(const QString& name) { QDir(files.path(name)).removeRecursively(); }

    const ApplicationFolder folder = files.folder();
    LoadLog log{folder};

private:
    static void expect(const std::vector<Box>& boxes, RecordingPrompts& scene)
    {
        for (const Box& box : boxes) {
            scene.expectMessage(box.title, box.text, box.icon);
        }
    }
};

const Box completed{u"Backuping"_s, u"Completed"_s, PromptIcon::Information};

TEST_F(BackUpTexts, OfABackupAreTheSystemsOwn)
{
    const struct
    {
        const char* when;
        std::function<void()> arrange;
        std::vector<Box> boxes;
    } rows[] = {
        {"all goes well", [] {}, {completed}},
        {"the place is taken by a folder",
         [this] { QDir().mkpath(files.path(u"backups/may.kvb"_s)); },
         {{u"The program"_s, u"Backuping: file saving error ocured"_s, PromptIcon::None},
          {u"The program"_s, u"Backuping: file saving error ocured"_s, PromptIcon::None},
          {u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical}}},
        {"the templates are missing",
         [this] { remove(u"templates"_s); },
         {{u"Error"_s, u"Templates folder not found"_s, PromptIcon::Critical},
          {u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical}}},
        {"the pictures are missing",
         [this] { remove(u"pictures"_s); },
         {{u"Error"_s, u"Picture folder not found"_s, PromptIcon::Critical},
          {u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical}}},
        {"the shop file is missing",
         [this] { QFile::remove(files.path(u"shop.xml"_s)); },
         {{u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.when);
        makeFreshShop();
        row.arrange();
        backUp(u"may"_s, row.boxes);
        // The folder is made before anything is looked at. A failure writes nothing into it.
        EXPECT_TRUE(QFile::exists(files.path(u"backups"_s)));
        EXPECT_EQ(QFileInfo(files.path(u"backups/may.kvb"_s)).isFile(), row.boxes.front().text == completed.text);
    }
}

TEST_F(BackUpTexts, OfARestoreAreTheSystemsOwn)
{
    backUp(u"may"_s, {completed});
    const QString packed = files.path(u"backups/may.kvb"_s);
    const QByteArray bytes = fileBytes(packed);
    QByteArray newer = bytes;
    newer[10] = '9'; // the first digit of the version
    const Box failed{u"Error"_s, u"Restore backup is failed"_s, PromptIcon::Critical};
    const struct
    {
        const char* when;
        QByteArray file;
        bool shopStays; // a folder is in the place of the shop file
        std::vector<Box> boxes;
    } rows[] = {
        {"all goes well",
         bytes,
         false,
         {{u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s, PromptIcon::Information}}},
        {"the file is no backup",
         "nonsense",
         false,
         {{u"Restoring"_s, u"File restore failure.\r\n"_s + packed, PromptIcon::Critical}, failed}},
        {"the file is newer than the program",
         newer,
         false,
         {{u"Restoring canceled"_s, u"File version is newer than the version of application.\r\n"_s + packed,
           PromptIcon::Warning},
          failed}},
        {"the shop file cannot be removed",
         bytes,
         true,
         {{u"Restoring canceled"_s, u"Can't remove shop.xml"_s, PromptIcon::Critical}, failed}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.when);
        writeFile(packed, row.file);
        const QString shop = files.path(u"shop.xml"_s);
        writeFile(shop, "changed");
        if (row.shopStays) {
            QFile::remove(shop);
            QDir().mkpath(shop + u"/inside"_s);
        }
        const bool works = row.boxes.size() == 1;
        EXPECT_EQ(restore(packed, row.boxes), works);
        if (!row.shopStays) {
            EXPECT_EQ(fileBytes(shop), works ? referenceShop() : "changed");
        }
    }
}

} // namespace
