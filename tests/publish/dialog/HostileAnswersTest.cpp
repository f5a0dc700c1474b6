// Answers that no shop should give: each ends in its message, the log tells what it has to, and the dialog works
// afterwards.
#include "publish/VendorAddresses.h"
#include "publish/dialog/RawServer.h"
#include "publish/dialog/UploadDialogTest.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString noListText = u"Server error.\r\nServer didn't send image list.\r\n"
                           "Please, submit to vendor 'upload.log' file that located in app folder"_s;
const QString unknownErrorText =
    u"Unknown error.\r\nPlease, submit to vendor 'upload.log' file that located in app folder"_s;
const QString wrongLoginText = u"Incorrect login or password! In case you forgot your password please visit:\r\n"_s +
                               VendorAddresses::passwordRecovery();
const QString upgradeText = u"You don't have the latest version of the software.\r\nTo upgrade:\r\n"
                            "Backup your store.\r\nDownload the latest version.\r\n"
                            "Uninstall current version and install the new one.\r\nRestore your store.\r\n"
                            "For more info go to "_s +
                            VendorAddresses::upgrade();

RawServer::Handler statusAnswer(int status, const QByteArray& body)
{
    return [status, body](QTcpSocket& socket, const RawServer::Request&) { sendAnswer(socket, status, body); };
}

void drop(QTcpSocket& socket, const RawServer::Request&)
{
    socket.abort();
}

void cutOff(QTcpSocket& socket, const RawServer::Request&)
{
    socket.write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n1.2.0|cup.png|1|x\r\n");
    socket.disconnectFromHost();
}

struct Box
{
    QString title; // empty for none
    QString text;
    PromptIcon icon = PromptIcon::Warning;
};

// What the dialog does after the answer.
enum class Then { Closes, StaysOpen, GoesOn };

struct Row
{
    const char* what;
    RawServer::Handler answer;
    Box box;
    Then then;
    bool inLog = false; // the failure is the log's third line
};

class HostileAnswersTest : public UploadDialogTest
{
protected:
    HostileAnswersTest() { useSmallShop(files); }

    // Uploads to a server that gives this answer to the request of that number, 0-based.
    void uploadWith(const Row& row, std::size_t number)
    {
        server.requests.clear();
        server.startedRequests = 0;
        server.handler = [this, &row, number](QTcpSocket& socket, const RawServer::Request& request) {
            (server.requests.size() == number + 1 ? row.answer : shopWithFiles({}))(socket, request);
        };
        if (!row.box.title.isEmpty()) {
            prompts.expectMessage(row.box.title, row.box.text, row.box.icon);
        }
        if (row.then == Then::GoesOn) {
            expectComplete();
        }
        open();
        upload(server.address());
        QTest::qWait(20); // for a request that should not come
        const std::size_t requests = row.then == Then::GoesOn ? 20 : number + 1;
        EXPECT_EQ(server.requests.size(), requests);
        EXPECT_EQ(server.startedRequests, static_cast<int>(requests));
        EXPECT_EQ(dialog->isVisible(), row.then == Then::StaysOpen);
        EXPECT_EQ(dialog->cursor().shape(), Qt::ArrowCursor);
        if (dialog->isVisible()) {
            click("CancelBtn");
        }
        const QByteArray start = "anna\r\n" + server.address().toLatin1() + "\r\n";
        EXPECT_TRUE(log().startsWith(start));
        EXPECT_EQ(log().size() > start.size(), row.inLog) << log().toStdString();
    }

    void uploadAfterwards()
    {
        server.handler = shopWithFiles({});
        server.requests.clear();
        open();
        expectComplete();
        upload(server.address());
        EXPECT_EQ(server.requests.size(), 20U);
        EXPECT_EQ(log(), "anna\r\n" + server.address().toLatin1() + "\r\n");
    }

    RawServer server;
};

TEST_F(HostileAnswersTest, EachAnswerToTheListRequestEndsInItsMessage)
{
    QByteArray megabyte = "1.2.0|";
    for (int i = 0; megabyte.size() < 1100000; ++i) {
        megabyte += "picture-" + QByteArray::number(i) + ".png|" + QByteArray::number(i) + "|20.11.2026 12:00:00\r\n";
    }
    const Box list{u"Uploading data"_s, noListText, PromptIcon::Critical};
    const Box overflow{u"Error 6"_s, u"Overflow\r\n"_s};
    const Box mismatch{u"Error 13"_s, u"Type mismatch\r\n"_s};
    const Box invalid{u"Error 5"_s, u"Invalid argument\r\n"_s};
    const Box twice{u"Error 457"_s, u"This key is already in the collection\r\n"_s};
    const Box upgrade{u"Uploading canceled"_s, upgradeText};
    const std::vector<Row> rows{
        {"dropped", drop, list, Then::Closes, true},
        {"cut off", cutOff, list, Then::Closes, true},
        {"no HTTP",
         [](QTcpSocket& socket, const RawServer::Request&) {
             socket.write(QByteArray(100, '\0'));
             socket.disconnectFromHost();
         },
         list, Then::Closes, true},
        {"a megabyte of list", statusAnswer(200, megabyte), {}, Then::GoesOn},
        {"a size that is no number", statusAnswer(200, "1.2.0|a.png|x|y\r\n"), mismatch, Then::Closes},
        {"a size that is too large", statusAnswer(200, "1.2.0|a.png|4294967296|y\r\n"), overflow, Then::Closes},
        {"a line without bars", statusAnswer(200, "1.2.0|a.png\r\n"), invalid, Then::Closes},
        {"a name twice", statusAnswer(200, "1.2.0|a.png|1|x\r\na.png|1|x\r\n"), twice, Then::Closes},
        {"bytes of no meaning", statusAnswer(200, QByteArray("1.2.0|\0\xFF\xFE|1\0|x\r\n", 16)), mismatch,
         Then::Closes},
        {"a blank behind the version", statusAnswer(200, "1.2.0 |"), upgrade, Then::Closes},
        {"another version", statusAnswer(200, "1.3.0|"), upgrade, Then::Closes},
        {"an empty answer", statusAnswer(200, ""), {}, Then::Closes},
        {"a page", statusAnswer(200, "<html>Welcome</html>"), {}, Then::Closes},
        {"401 in a 200", statusAnswer(200, "401"), {u"Error 0"_s, wrongLoginText}, Then::StaysOpen},
        {"401 and more in a 200", statusAnswer(200, "4017|"), {u"Error 0"_s, wrongLoginText}, Then::StaysOpen},
        {"500 in a 200", statusAnswer(200, "500"), {u"Error 0"_s, u"Server internal error"_s}, Then::StaysOpen},
        {"the word error", statusAnswer(200, "error"), {}, Then::StaysOpen},
        {"401", statusAnswer(401, "no"), {u"Error 401"_s, u"Login or password isn't correct"_s}, Then::Closes},
        {"404", statusAnswer(404, "no"), {u"Error 404"_s, u"Document not found"_s}, Then::Closes},
        {"500", statusAnswer(500, "no"), {u"Error 500"_s, u"Server internal error"_s}, Then::Closes},
        {"503", statusAnswer(503, "no"), {u"Error 503"_s, u"Uploading is failed.\r\nnoError #503\r\n"_s}, Then::Closes},
        {"302", statusAnswer(302, ""), {u"Error 302"_s, u"Uploading is failed.\r\nError #302\r\n"_s}, Then::Closes},
        {"503 with a good list",
         statusAnswer(503, "1.2.0|"),
         {u"Error 503"_s, u"Uploading is failed.\r\n1.2.0|Error #503\r\n"_s},
         Then::GoesOn},
        {"404 with the word error",
         statusAnswer(404, "error"),
         {u"Error 404"_s, u"Document not found"_s},
         Then::StaysOpen},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        uploadWith(row, 0);
        uploadAfterwards();
    }
}

TEST_F(HostileAnswersTest, EachAnswerToAFileEndsInItsMessage)
{
    const Box unknown{u"Uploading data"_s, unknownErrorText, PromptIcon::Critical};
    const std::vector<Row> rows{
        {"dropped", drop, unknown, Then::StaysOpen, true},
        {"cut off", cutOff, unknown, Then::StaysOpen, true},
        {"an empty answer", statusAnswer(200, ""), {}, Then::GoesOn},
        {"401 in a 200", statusAnswer(200, "401 no"), {u"Error 0"_s, wrongLoginText}, Then::StaysOpen},
        {"500 in a 200", statusAnswer(200, "500"), {u"Error 0"_s, u"Server internal error"_s}, Then::StaysOpen},
        {"401", statusAnswer(401, "no"), {u"Error 401"_s, u"Login or password isn't correct"_s}, Then::GoesOn},
        {"404", statusAnswer(404, "no"), {u"Error 404"_s, u"Document not found"_s}, Then::GoesOn},
        {"500", statusAnswer(500, "no"), {u"Error 500"_s, u"Server internal error"_s}, Then::GoesOn},
        {"503", statusAnswer(503, "no"), {u"Error 503"_s, u"Uploading is failed.\r\nnoError #503\r\n"_s}, Then::GoesOn},
        {"the word error", statusAnswer(500, "error"), {u"Error 500"_s, u"Server internal error"_s}, Then::StaysOpen},
    };
    for (const std::size_t number : {1U, 3U, 19U}) { // the shop, a picture, the last template
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::Message() << row.what << ", request " << number);
            uploadWith(row, number);
        }
    }
    uploadAfterwards();
}

TEST_F(HostileAnswersTest, AServerThatStallsKeepsTheDialogWaitingUntilItAnswers)
{
    QTcpSocket* stalled = nullptr;
    server.handler = [&stalled](QTcpSocket& socket, const RawServer::Request&) { stalled = &socket; };
    open();
    typeAll(server.address());
    click("OkBtn");
    ASSERT_TRUE(waitUntil([&stalled] { return stalled != nullptr; }));
    stalled->write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n1.2");
    QTest::qWait(500);
    EXPECT_TRUE(dialog->isTransferring());
    EXPECT_EQ(server.startedRequests, 1);
    click("CancelBtn");
    EXPECT_TRUE(dialog->isVisible());

    server.handler = shopWithFiles({});
    expectComplete();
    stalled->write(".0|");
    waitForEnd();
    EXPECT_EQ(server.requests.size(), 20U);
}

TEST_F(HostileAnswersTest, AServerThatIsNotThereIsToldInTheLog)
{
    open();
    prompts.expectMessage(u"Uploading data"_s, noListText, PromptIcon::Critical);
    const QString nowhere = std::make_unique<RawServer>()->address();
    upload(nowhere);
    EXPECT_FALSE(dialog->isVisible());
    // The words are the network library's own.
    const QRegularExpression failure(u"^anna\r\n"_s + QRegularExpression::escape(nowhere) +
                                     u"\r\n[^|\r\n]+\\|%1\r\n$"_s.arg(CURLE_COULDNT_CONNECT));
    EXPECT_TRUE(failure.match(QString::fromUtf8(log())).hasMatch()) << log().toStdString();
    uploadAfterwards();
}

} // namespace
