#include "publish/FileListReader.h"

#include "publish/VendorAddresses.h"
#include "support/TestSupport.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString upgradeText = u"You don't have the latest version of the software.\r\n"
                            "To upgrade:\r\n"
                            "Backup your store.\r\n"
                            "Download the latest version.\r\n"
                            "Uninstall current version and install the new one.\r\n"
                            "Restore your store.\r\n"
                            "For more info go to "_s +
                            VendorAddresses::upgrade();

TEST(FileListReader, ALineHasNameSizeAndAThirdValue)
{
    RecordingPrompts prompts;
    ServerFileList list;
    const QString answer = u"1.2.0|cup.png|1204|20.11.2026\r\npot.gif|0|a|b\r\n"_s;
    ASSERT_TRUE(readFileList(answer, u"1.2.0"_s, list, prompts));
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1).fileName, u"cup.png"_s);
    EXPECT_EQ(list.Item(1).size, 1204);
    EXPECT_EQ(list.Item(1).thirdValue, u"20.11.2026"_s);
    EXPECT_EQ(list.Item(u"POT.gif"_s).size, 0);
    EXPECT_EQ(list.Item(u"POT.gif"_s).thirdValue, u"a|b"_s);
}

TEST(FileListReader, TheVersionAndOneBarGiveAnEmptyList)
{
    RecordingPrompts prompts;
    ServerFileList list;
    list.Add({u"old.png"_s, 1, {}}, u"old.png"_s);
    EXPECT_TRUE(readFileList(u"1.2.0|"_s, u"1.2.0"_s, list, prompts));
    EXPECT_TRUE(list.isEmpty());
}

TEST(FileListReader, ALastLineWithoutItsEndIsNotRead)
{
    for (const QString& rest : {u"b.png|7|x"_s, u"b.png|7|x\n"_s, u"b.png|7|x\r"_s, u"what is this"_s}) {
        RecordingPrompts prompts;
        ServerFileList list;
        EXPECT_TRUE(readFileList("1.2.0|a.png|5|x\r\n"_L1 + rest, u"1.2.0"_s, list, prompts)) << rest.toStdString();
        EXPECT_EQ(list.Count(), 1);
    }
}

TEST(FileListReader, AnAnswerWithoutABarEndsTheUploadWithoutABox)
{
    for (const QString& answer : {u""_s, u"1.2.0"_s, u"<html>Not found</html>"_s}) {
        RecordingPrompts prompts;
        ServerFileList list;
        EXPECT_FALSE(readFileList(answer, u"1.2.0"_s, list, prompts)) << answer.toStdString();
    }
}

TEST(FileListReader, AVersionThatDiffersInAnyLetterAsksForAnUpgrade)
{
    for (const QString& version : {u"1.2.0 "_s, u" 1.2.0"_s, u"1.2.00"_s, u"1.2.1"_s, u""_s, u"\r\n1.2.0"_s}) {
        SCOPED_TRACE(version.toStdString());
        RecordingPrompts prompts;
        ServerFileList list;
        prompts.expectMessage(u"Uploading canceled"_s, upgradeText, PromptIcon::Warning);
        EXPECT_FALSE(readFileList(version + "|a.png|5|x\r\n"_L1, u"1.2.0"_s, list, prompts));
        EXPECT_TRUE(list.isEmpty());
    }
}

TEST(FileListReader, AWrongLineShowsItsErrorAndEndsTheUpload)
{
    struct Row
    {
        QString lines;
        QString title;
        QString text;
    };
    const QString invalid = u"Invalid argument\r\n"_s;
    const QString mismatch = u"Type mismatch\r\n"_s;
    const QString overflow = u"Overflow\r\n"_s;
    const QString duplicate = u"This key is already in the collection\r\n"_s;
    const std::vector<Row> rows{
        {u"cup.png\r\n"_s, u"Error 5"_s, invalid},
        {u"cup.png|12\r\n"_s, u"Error 5"_s, invalid},
        {u"\r\n"_s, u"Error 5"_s, invalid},
        {u"a|1|x\r\n\r\n"_s, u"Error 5"_s, invalid},
        {u"cup.png||x\r\n"_s, u"Error 13"_s, mismatch},
        {u"cup.png|big|x\r\n"_s, u"Error 13"_s, mismatch},
        {u"cup.png|12.5|x\r\n"_s, u"Error 13"_s, mismatch},
        {u"cup.png|1,204|x\r\n"_s, u"Error 13"_s, mismatch},
        {u"cup.png|1.204|x\r\n"_s, u"Error 13"_s, mismatch},
        {u"cup.png|0x10|x\r\n"_s, u"Error 13"_s, mismatch},
        {u"cup.png|2147483648|x\r\n"_s, u"Error 6"_s, overflow},
        {u"cup.png|-2147483649|x\r\n"_s, u"Error 6"_s, overflow},
        {u"cup.png|99999999999999999999999|x\r\n"_s, u"Error 6"_s, overflow},
        {u"cup.png|1|x\r\nCUP.png|2|y\r\n"_s, u"Error 457"_s, duplicate},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.lines.toStdString());
        RecordingPrompts prompts;
        ServerFileList list;
        prompts.expectMessage(row.title, row.text, PromptIcon::Warning);
        EXPECT_FALSE(readFileList("1.2.0|"_L1 + row.lines, u"1.2.0"_s, list, prompts));
        EXPECT_TRUE(list.isEmpty());
    }
}

TEST(FileListReader, BlanksAroundASizeAreAllowedAndNoneInsideIt)
{
    const ServerFileList list = parseFileLines(u"a| 12|x\r\nb|12  |x\r\nc| \t12 |x\r\n");
    for (const clsFileProp& file : list) {
        EXPECT_EQ(file.size, 12) << file.fileName.toStdString();
    }
    EXPECT_EQ(errorOf([] { parseFileLines(u"a|1 2|x\r\n"); }), 13);
    EXPECT_EQ(errorOf([] { parseFileLines(u"a|  |x\r\n"); }), 13);
}

TEST(FileListReader, SizesReachToTheEndsOf32Bits)
{
    const ServerFileList list = parseFileLines(u"a|2147483647|\r\nb|-2147483648|\r\nc|007|\r\n");
    EXPECT_EQ(list.Item(u"a"_s).size, 2147483647);
    EXPECT_EQ(list.Item(u"b"_s).size, -2147483647 - 1);
    EXPECT_EQ(list.Item(u"c"_s).size, 7);
}

} // namespace
