// How much memory an upload takes: a few times the largest file, however many there are. A program of its own, since
// the peak of a process counts.
#include "publish/dialog/PhpServer.h"
#include "publish/dialog/UploadDialogTest.h"

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 megabyte = qint64{1024} * 1024;

// A row of the process's own status, in bytes.
qint64 statusOf(const QByteArray& row)
{
    for (const QByteArray& line : fileBytes(u"/proc/self/status"_s).split('\n')) {
        if (line.startsWith(row)) {
            return line.sliced(row.size()).simplified().split(' ')[0].toLongLong() * 1024;
        }
    }
    ADD_FAILURE() << row.toStdString();
    return 0;
}

class PublishMemoryTest : public UploadDialogTest
{
protected:
    // Publishes that many pictures of that size and returns how far memory grew over that of the idle dialog.
    qint64 growth(int count, qint64 size)
    {
        QByteArray shop = "<Tarnwick><Shop><Category>";
        for (int i = 0; i < count; ++i) {
            const QByteArray name = QByteArray::number(i) + ".png";
            shop += "<Product><Picture>" + name + "</Picture></Product>";
            writeFile(files.path("pictures/"_L1 + QString::fromLatin1(name)), QByteArray(size, static_cast<char>(i)));
        }
        writeFile(files.path(u"shop.xml"_s), shop + "</Category><ShopDesign/></Shop></Tarnwick>");
        open();
        typeAll(server.address());
        malloc_trim(0); // what was freed so far does not count as idle
        const qint64 idle = statusOf("VmRSS:");
        writeFile(u"/proc/self/clear_refs"_s, "5"); // the peak counts from here
        expectComplete();
        click("OkBtn");
        waitForEnd();
        const qint64 peak = statusOf("VmHWM:");
        EXPECT_EQ(server.takeRequests().size(), static_cast<std::size_t>(count) + 16);
        return peak - idle;
    }

    PhpServer server;
};

TEST_F(PublishMemoryTest, TwoHundredMegabytesOfPicturesTakeThreeTimesTheLargestAndFiftyMegabytes)
{
    useSmallShop(files);
    ASSERT_TRUE(server.start()) << server.why().toStdString();
    for (const int count : {200, 10}) {
        const qint64 size = 200 * megabyte / count;
        const qint64 grown = growth(count, size);
        EXPECT_LE(grown, 3 * size + 50 * megabyte) << count;
        std::printf("%d pictures of %lld MB: memory grows by %.1f MB\n", count, static_cast<long long>(size / megabyte),
                    static_cast<double>(grown) / megabyte);
    }
}

} // namespace
