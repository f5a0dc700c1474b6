#include "publish/UploadLog.h"

#include "support/TestSupport.h"

#include <QDir>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

TEST(UploadLog, WithoutAFailureItHasTwoLines)
{
    const TemporaryShopFolder files;
    writeUploadLog(files.folder(), u"jürgen"_s, u"http://shop.test/"_s, std::nullopt);
    EXPECT_EQ(fileBytes(files.path(u"upload.log"_s)), "j\xC3\xBCrgen\r\nhttp://shop.test/\r\n");
}

TEST(UploadLog, AFailureIsItsThirdLine)
{
    const TemporaryShopFolder files;
    writeFile(files.path(u"upload.log"_s), QByteArray(500, 'x'));
    writeUploadLog(files.folder(), u"anna"_s, u"http://shop.test/"_s, TransferFailure{u"Connection refused"_s, 1});
    EXPECT_EQ(fileBytes(files.path(u"upload.log"_s)), "anna\r\nhttp://shop.test/\r\nConnection refused|1\r\n");
}

TEST(UploadLog, AFailuresLineEndsDoNotMakeMoreLines)
{
    const TemporaryShopFolder files;
    writeUploadLog(files.folder(), u"anna"_s, u"x"_s, TransferFailure{u"File not found: a\r\nb"_s, 53});
    EXPECT_EQ(fileBytes(files.path(u"upload.log"_s)), "anna\r\nx\r\nFile not found: a  b|53\r\n");
}

TEST(UploadLog, ItRemembersItsFirstTwoItems)
{
    struct Row
    {
        const char* what;
        QByteArray bytes;
        std::optional<QString> login;
        std::optional<QString> address;
    };
    const std::vector<Row> rows{
        {"two lines", "anna\r\nhttp://a/\r\n", u"anna"_s, u"http://a/"_s},
        {"three lines", "anna\r\nhttp://a/\r\nfailed|1\r\n", u"anna"_s, u"http://a/"_s},
        {"four items", "anna\r\nhttp://a/\r\nfailed, badly|1\r\n", u"anna"_s, u"http://a/"_s},
        {"five items", "anna\r\nhttp://a/\r\na,b,c|1\r\n", std::nullopt, std::nullopt},
        {"many lines", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n", std::nullopt, std::nullopt},
        {"a comma ends an item", "anna,http://a/", u"anna"_s, u"http://a/"_s},
        {"no last line end", "anna\nhttp://a/", u"anna"_s, u"http://a/"_s},
        {"an empty login", "\r\nhttp://a/\r\n", u""_s, u"http://a/"_s},
        {"one line", "anna\r\n", u"anna"_s, std::nullopt},
        {"an empty file", "", std::nullopt, std::nullopt},
        {"blanks and quotes stay", " \"anna\" \r\nx\r\n", u" \"anna\" "_s, u"x"_s},
        {"letters of one byte", "j\xFCrgen\r\nx\r\n", u"jürgen"_s, u"x"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const TemporaryShopFolder files;
        writeFile(files.path(u"upload.log"_s), row.bytes);
        const RememberedUpload remembered = readUploadLog(files.folder());
        EXPECT_EQ(remembered.login, row.login);
        EXPECT_EQ(remembered.address, row.address);
    }
}

TEST(UploadLog, WithoutAFileNothingIsRemembered)
{
    const TemporaryShopFolder files;
    EXPECT_EQ(readUploadLog(files.folder()).login, std::nullopt);
    ASSERT_TRUE(QDir(files.folder().path()).mkdir(u"upload.log"_s));
    EXPECT_EQ(readUploadLog(files.folder()).address, std::nullopt);
}

} // namespace
