#include "publish/UploadRun.h"

#include "publish/PublishSupport.h"
#include "publish/VendorAddresses.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString noListText = u"Server error.\r\nServer didn't send image list.\r\n"
                           "Please, submit to vendor 'upload.log' file that located in app folder"_s;
const QString unknownErrorText =
    u"Unknown error.\r\nPlease, submit to vendor 'upload.log' file that located in app folder"_s;

class UploadRunTest : public testing::Test
{
protected:
    UploadRunTest() { useSmallShop(files); }

    void expectComplete() { prompts.expectMessage(u"Uploading data"_s, u"Complete"_s); }
    // The state after a stop that leaves the screen open and ready.
    void expectReady()
    {
        EXPECT_FALSE(run.isTransferring());
        EXPECT_FALSE(screen.hourglass);
        EXPECT_EQ(screen.closings, 0);
        EXPECT_FALSE(client.isWaiting());
    }
    QByteArray log() const { return fileBytes(files.path(u"upload.log"_s)); }
    // Puts that many pictures into a shop of its own.
    void usePictures(int count)
    {
        QByteArray shop = "<Tarnwick><Shop><Category>";
        for (int i = 0; i < count; ++i) {
            const QByteArray name = QByteArray::number(i) + ".png";
            shop += "<Product><Picture>" + name + "</Picture></Product>";
            writeFile(files.path("pictures/"_L1 + QString::fromLatin1(name)), "p");
        }
        writeFile(files.path(u"shop.xml"_s), shop + "</Category><ShopDesign/></Shop></Tarnwick>");
    }

    TemporaryShopFolder files;
    FakeHttpClient client;
    RecordingPrompts prompts;
    FakeScreen screen;
    UploadRun run{files.folder(), client, prompts, screen};
};

TEST_F(UploadRunTest, EveryRequestIsTheExpectedOneByteForByte)
{
    expectComplete();
    run.start();
    client.answerAll({});
    const QStringList sequence = expectedSequence();
    ASSERT_EQ(sequence.size(), 20);
    ASSERT_EQ(client.requests.size(), 20U);
    for (qsizetype i = 0; i < sequence.size(); ++i) {
        SCOPED_TRACE(sequence[i].toStdString());
        const FakeHttpClient::Request& request = client.requests[static_cast<std::size_t>(i)];
        EXPECT_EQ(request.url, i == 0 ? u"http://shop.test/admin/list.php"_s : u"http://shop.test/admin/upload.php"_s);
        EXPECT_EQ(request.contentType, "multipart/form-data, boundary=AaB03x");
        EXPECT_EQ(request.body, expectedRequest(sequence[i], files.folder()));
    }
    EXPECT_EQ(screen.closings, 1);
    EXPECT_FALSE(run.isTransferring());
    EXPECT_FALSE(screen.hourglass);
}

TEST_F(UploadRunTest, PicturesThatTheServerHasStayAtHome)
{
    expectComplete();
    run.start();
    client.answerAll("cups.png|13|x\r\nblue.png|1|x\r\nlogo.png|10|x\r\n");
    const QString pictures = files.folder().path() + "\\pictures\\"_L1;
    EXPECT_EQ(client.sentFileNames().mid(1, 3),
              QStringList({pictures + "blue.png"_L1, pictures + "pot.gif"_L1, u"cart.html"_s}));
}

TEST_F(UploadRunTest, TheAddressIsCorrectedInItsField)
{
    screen.typed.address = u"shop.example/x"_s;
    run.start();
    EXPECT_EQ(screen.typed.address, u"http://shop.example/x/"_s);
    EXPECT_EQ(client.requests[0].url, u"http://shop.example/x/admin/list.php"_s);
}

TEST_F(UploadRunTest, HourglassBarAndFlagComeWithTheStart)
{
    EXPECT_TRUE(screen.progress.empty());
    run.start();
    EXPECT_TRUE(run.isTransferring());
    EXPECT_TRUE(screen.hourglass);
    EXPECT_EQ(screen.progress, std::vector<int>{0});
}

TEST_F(UploadRunTest, ASecondStartDuringATransferDoesNothing)
{
    run.start();
    run.start();
    EXPECT_EQ(client.requests.size(), 1U);
    client.answer(httpAnswer(200, "1.2.0|"));
    run.start();
    EXPECT_EQ(client.requests.size(), 2U);
    EXPECT_EQ(screen.progress.size(), 2U);
}

TEST_F(UploadRunTest, FieldsThatChangeDuringATransferAreForTheNextOne)
{
    expectComplete();
    run.start();
    screen.typed = {u"http://other.test/"_s, u"eve"_s, u"pw"_s};
    client.answerAll({});
    EXPECT_TRUE(client.requests.back().url.startsWith(u"http://shop.test/"));
    EXPECT_EQ(client.requests.back().body, expectedRequest(u"19-payed_ok.bin"_s, files.folder()));
}

TEST_F(UploadRunTest, TheBarAdvancesByStepsAndEndsAt100AtMost)
{
    struct Row
    {
        int pictures;
        std::vector<int> first; // values of the bar up to the first template
        int last;
    };
    // Two steps ahead, two for the shop, one for each picture, one for each template and two more for each pair.
    const std::vector<Row> rows{
        {0, {0, 10, 20, 25, 40, 45, 60}, 100}, {2, {0, 8, 16, 20, 24, 28, 40}, 100},
        {6, {0, 8, 16, 20, 24, 28, 32}, 100},  {31, {0, 4, 8, 10, 12, 14, 16}, 100},
        {81, {0, 2, 4, 5, 6, 7, 8}, 100},      {82, {0, 0, 0, 0, 0, 0, 0}, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pictures);
        screen.progress.clear();
        usePictures(row.pictures);
        expectComplete();
        run.start();
        client.answerAll({});
        ASSERT_GE(screen.progress.size(), row.first.size());
        EXPECT_TRUE(std::equal(row.first.begin(), row.first.end(), screen.progress.begin()))
            << testing::PrintToString(screen.progress);
        EXPECT_EQ(screen.progress.back(), row.last);
        EXPECT_TRUE(std::is_sorted(screen.progress.begin(), screen.progress.end()));
    }
}

TEST_F(UploadRunTest, AStatusThatIsNotNamedShowsItsBoxAndTheUploadGoesOn)
{
    run.start();
    prompts.expectMessage(u"Error 503"_s, u"Uploading is failed.\r\n1.2.0|Error #503\r\n"_s, PromptIcon::Warning);
    client.answer(httpAnswer(503, "1.2.0|"));
    prompts.expectMessage(u"Error 404"_s, u"Document not found"_s, PromptIcon::Warning);
    client.answer(httpAnswer(404, "no such page"));
    EXPECT_TRUE(run.isTransferring());
    EXPECT_EQ(client.requests.size(), 3U);
    EXPECT_TRUE(client.lastFileName().endsWith("\\pictures\\cups.png"));
}

TEST_F(UploadRunTest, AnErrorInAnyAnswerStopsTheUploadAndLeavesTheScreenReady)
{
    struct Row
    {
        HttpAnswer answer;
        QString title;
        QString text;
    };
    const QString wrongLogin = u"Incorrect login or password! In case you forgot your password please visit:\r\n"_s +
                               VendorAddresses::passwordRecovery();
    const std::vector<Row> rows{
        {httpAnswer(200, "401"), u"Error 0"_s, wrongLogin},
        {httpAnswer(200, "500"), u"Error 0"_s, u"Server internal error"_s},
        {httpAnswer(200, "error"), {}, {}},
        {httpAnswer(404, "error"), u"Error 404"_s, u"Document not found"_s},
    };
    for (const Row& row : rows) {
        for (int before = 0; before < 20; ++before) {
            SCOPED_TRACE(testing::Message() << row.answer.body.toStdString() << " after " << before);
            client.requests.clear();
            run.start();
            for (int i = 0; i < before; ++i) {
                client.answer(httpAnswer(200, i == 0 ? "1.2.0|" : "ok"));
            }
            if (!row.title.isEmpty()) {
                prompts.expectMessage(row.title, row.text, PromptIcon::Warning);
            }
            client.answer(row.answer);
            expectReady();
            EXPECT_EQ(client.requests.size(), static_cast<std::size_t>(before) + 1);
        }
    }
    EXPECT_FALSE(QFile::exists(files.path(u"upload.log"_s)));
}

TEST_F(UploadRunTest, AListThatCannotBeReadClosesTheScreen)
{
    run.start();
    client.answer(httpAnswer(200, "")); // without a word
    EXPECT_EQ(screen.closings, 1);
    EXPECT_FALSE(run.isTransferring());
    EXPECT_FALSE(screen.hourglass);

    run.start();
    prompts.expectMessage(u"Error 13"_s, u"Type mismatch\r\n"_s, PromptIcon::Warning);
    client.answer(httpAnswer(200, "1.2.0|cup.png|big|x\r\n"));
    EXPECT_EQ(screen.closings, 2);
    EXPECT_FALSE(run.isTransferring());
    EXPECT_EQ(client.requests.size(), 2U);
}

TEST_F(UploadRunTest, WithoutAnAnswerToTheListTheScreenClosesAfterItsBox)
{
    run.start();
    prompts.expectMessage(u"Uploading data"_s, noListText, PromptIcon::Critical);
    client.answer(httpFailure(u"Connection refused"_s, 1));
    EXPECT_EQ(log(), "anna\r\nhttp://shop.test/\r\nConnection refused|1\r\n");
    EXPECT_EQ(screen.closings, 1);
    EXPECT_FALSE(run.isTransferring());
    EXPECT_FALSE(screen.hourglass);
}

TEST_F(UploadRunTest, WithoutAnAnswerToAFileTheScreenStaysOpen)
{
    run.start();
    client.answer(httpAnswer(200, "1.2.0|"));
    client.answer(httpAnswer(200, "ok"));
    prompts.expectMessage(u"Uploading data"_s, unknownErrorText, PromptIcon::Critical);
    client.answer(httpFailure(u"Connection closed"_s, 2));
    EXPECT_EQ(log(), "anna\r\nhttp://shop.test/\r\nConnection closed|2\r\n");
    expectReady();
}

TEST_F(UploadRunTest, AFileThatCannotBeOpenedIsAnUnknownError)
{
    struct Row
    {
        QString missing;
        std::size_t requests; // that were sent before
    };
    for (const Row& row : {Row{u"pictures/pot.gif"_s, 4}, Row{u"templates/payed_ok.html"_s, 19}}) {
        SCOPED_TRACE(row.missing.toStdString());
        client.requests.clear();
        const QString path = files.path(row.missing);
        ASSERT_TRUE(QFile::rename(path, path + ".away"_L1));
        run.start();
        prompts.expectMessage(u"Uploading data"_s, unknownErrorText, PromptIcon::Critical);
        client.answerAll({});
        EXPECT_EQ(client.requests.size(), row.requests);
        EXPECT_EQ(log(), "anna\r\nhttp://shop.test/\r\nFile not found: " + path.toUtf8() + "|53\r\n");
        expectReady();
        ASSERT_TRUE(QFile::rename(path + ".away"_L1, path));
    }
}

TEST_F(UploadRunTest, AFileThatHoldsTheBoundaryIsNamedAndNothingOfTheShopIsSent)
{
    const QByteArray smuggled = "--AaB03x\r\nContent-Disposition: form-data; name=\"file[]\"; filename=\"x.php\"\r\n";
    const struct
    {
        QString file;
        QString named;
        QByteArray ahead;
    } rows[] = {
        {u"shop.xml"_s, u"The file shop.xml"_s, "<Tarnwick><Shop><ShopDesign/><Name>\n"},
        {u"pictures/pot.gif"_s, u"The picture pot.gif"_s, ""},
        {u"templates/payed_ok.html"_s, u"The template payed_ok.html"_s, "<!--1.2.0-->\r\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.named.toStdString());
        client.requests.clear();
        screen.progress.clear();
        const QByteArray before = fileBytes(files.path(row.file));
        const QByteArray after = row.file == u"shop.xml"_s ? QByteArray("</Name></Shop></Tarnwick>") : QByteArray();
        writeFile(files.path(row.file), row.ahead + smuggled + after);
        run.start();
        prompts.expectMessage(u"Uploading data"_s,
                              row.named + u" cannot be sent: a line that begins with \"--AaB03x\" ends what the server "
                                          "reads."_s,
                              PromptIcon::Warning);
        client.answer(httpAnswer(200, "1.2.0|"));
        EXPECT_EQ(client.requests.size(), 1U); // the one for the list
        EXPECT_EQ(screen.progress, std::vector<int>{0});
        expectReady();
        EXPECT_FALSE(QFile::exists(files.path(u"upload.log"_s)));
        writeFile(files.path(row.file), before);
    }
}

TEST_F(UploadRunTest, AFileThatGetsTheBoundaryDuringTheUploadIsNamedAndNotSent)
{
    const struct
    {
        QString file;
        QString named;
        std::size_t requests; // that were sent before
    } rows[] = {
        {u"pictures/cups.png"_s, u"The picture cups.png"_s, 2},
        {u"templates/payed_ok.html"_s, u"The template payed_ok.html"_s, 19},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.named.toStdString());
        client.requests.clear();
        const QByteArray before = fileBytes(files.path(row.file));
        run.start();
        client.answer(httpAnswer(200, "1.2.0|")); // all are searched, and the shop goes up
        ASSERT_EQ(client.requests.size(), 2U);
        writeFile(files.path(row.file), "x\n--AaB03x\r\nContent-Disposition: form-data; name=\"file[]\"\r\n");
        prompts.expectMessage(u"Uploading data"_s,
                              row.named + u" cannot be sent: a line that begins with \"--AaB03x\" ends what the server "
                                          "reads."_s,
                              PromptIcon::Warning);
        while (client.isWaiting()) {
            client.answer(httpAnswer(200, "ok"));
        }
        EXPECT_EQ(client.requests.size(), row.requests);
        expectReady();
        EXPECT_FALSE(QFile::exists(files.path(u"upload.log"_s)));
        writeFile(files.path(row.file), before);
    }
}

TEST_F(UploadRunTest, AFileThatCannotBeReadKeepsNoOtherFromBeingSearched)
{
    ASSERT_TRUE(QFile::remove(files.path(u"pictures/cups.png"_s)));
    writeFile(files.path(u"templates/menu.html"_s), "--AaB03x");
    run.start();
    prompts.expectMessage(
        u"Uploading data"_s,
        u"The template menu.html cannot be sent: a line that begins with \"--AaB03x\" ends what the server reads."_s,
        PromptIcon::Warning);
    client.answer(httpAnswer(200, "1.2.0|"));
    EXPECT_EQ(client.requests.size(), 1U);
}

TEST_F(UploadRunTest, APictureThatTheServerHasIsNotSearched)
{
    writeFile(files.path(u"pictures/cups.png"_s), "--AaB03x");
    expectComplete();
    run.start();
    client.answerAll("cups.png|8|x\r\n");
    EXPECT_EQ(screen.closings, 1);
}

TEST_F(UploadRunTest, ALoginOrPasswordThatBeginsLikeTheBoundaryIsNamedBeforeTheServerIsAsked)
{
    const struct
    {
        QString login;
        QString password;
        QString named;
    } rows[] = {
        {u"--AaB03x"_s, u"s3cret"_s, u"The login"_s},
        {u"anna"_s, u"--AaB03x--"_s, u"The password"_s},
    };
    for (const auto& row : rows) {
        screen.typed.login = row.login;
        screen.typed.password = row.password;
        prompts.expectMessage(u"Uploading data"_s,
                              row.named + u" cannot be sent: a line that begins with \"--AaB03x\" ends what the server "
                                          "reads."_s,
                              PromptIcon::Warning);
        run.start();
        EXPECT_TRUE(client.requests.empty());
        EXPECT_TRUE(screen.progress.empty());
        expectReady();
    }
    screen.typed.login = u"a--AaB03x"_s;
    screen.typed.password = u"s3cret"_s;
    run.start();
    EXPECT_EQ(client.requests.size(), 1U);
}

TEST_F(UploadRunTest, AListOfMoreThanFourMegabytesIsAFailure)
{
    const qsizetype most = qsizetype{4} * 1024 * 1024;
    const QByteArray version = "1.2.0|";
    run.start();
    client.answer(
        httpAnswer(200, version + QByteArray(most - version.size(), 'x'))); // a line without an end is not read
    EXPECT_EQ(client.requests.size(), 2U);
    run.abandon();

    client.requests.clear();
    run.start();
    prompts.expectMessage(u"Uploading data"_s, noListText, PromptIcon::Critical);
    client.answer(httpAnswer(200, version + QByteArray(most + 1 - version.size(), 'x')));
    EXPECT_EQ(client.requests.size(), 1U);
    EXPECT_EQ(log(), "anna\r\nhttp://shop.test/\r\nThe answer is too long|6\r\n");
    EXPECT_EQ(screen.closings, 1);
    EXPECT_FALSE(run.isTransferring());
    EXPECT_FALSE(screen.hourglass);
}

TEST_F(UploadRunTest, APictureNameThatLeadsOutOfItsFolderIsNotSent)
{
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick><Shop><Category><Picture>../shop.xml</Picture></Category>"
                                         "<ShopDesign/></Shop></Tarnwick>");
    run.start();
    prompts.expectMessage(u"Uploading data"_s, unknownErrorText, PromptIcon::Critical);
    client.answerAll({});
    EXPECT_EQ(client.requests.size(), 2U);
    EXPECT_TRUE(log().endsWith("|53\r\n"));
}

TEST_F(UploadRunTest, AShopFileWithoutItsElementsStopsWithTheHourglassOn)
{
    const auto title = u"Ambrel eCommerce Software"_s;
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick/>");
    run.start();
    prompts.expectMessage(title, u"Error in the configuration XML file. No 'Shop' node."_s);
    client.answer(httpAnswer(200, "1.2.0|"));
    EXPECT_FALSE(run.isTransferring());
    EXPECT_TRUE(screen.hourglass);
    EXPECT_EQ(screen.closings, 0);

    writeFile(files.path(u"shop.xml"_s), "<Tarnwick><Shop/></Tarnwick>");
    run.start();
    prompts.expectMessage(title, u"Error in the configuration XML file. No 'ShopDesign' node."_s);
    client.answer(httpAnswer(200, "1.2.0|"));
    EXPECT_FALSE(run.isTransferring());
    EXPECT_TRUE(screen.hourglass);
    EXPECT_EQ(client.requests.size(), 2U);
}

TEST_F(UploadRunTest, NothingTrapsAFailureOfTheWalk)
{
    ASSERT_TRUE(QDir(files.path(u"pictures"_s)).removeRecursively());
    run.start();
    EXPECT_EQ(errorOf([this] { client.answer(httpAnswer(200, "1.2.0|")); }), 75);
    EXPECT_FALSE(QFile::exists(files.path(u"upload.log"_s)));
}

TEST_F(UploadRunTest, AFailureStaysInTheLogUntilTheScreenOpensAgain)
{
    run.start();
    prompts.expectMessage(u"Uploading data"_s, noListText, PromptIcon::Critical);
    client.answer(httpFailure(u"Connection refused"_s, 1));
    expectComplete();
    run.start();
    client.answerAll({});
    run.writeLog();
    EXPECT_EQ(log(), "anna\r\nhttp://shop.test/\r\nConnection refused|1\r\n");
    run.open();
    run.writeLog();
    EXPECT_EQ(log(), "anna\r\nhttp://shop.test/\r\n");
}

TEST_F(UploadRunTest, AnAbandonedTransferSendsNothingMore)
{
    run.start();
    client.answer(httpAnswer(200, "1.2.0|"));
    run.abandon();
    EXPECT_FALSE(client.isWaiting());
    EXPECT_FALSE(run.isTransferring());
    EXPECT_EQ(client.requests.size(), 2U);
}

// The program can end while a box is shown.
class AbandoningPrompts : public RecordingPrompts
{
public:
    void showMessage(const QString& title, const QString& text, PromptIcon icon) override
    {
        RecordingPrompts::showMessage(title, text, icon);
        run->abandon();
    }

    UploadRun* run = nullptr;
};

TEST_F(UploadRunTest, AnUploadThatIsAbandonedBehindABoxDoesNotGoOn)
{
    AbandoningPrompts ending;
    UploadRun ended(files.folder(), client, ending, screen);
    ending.run = &ended;
    for (int before = 0; before < 2; ++before) {
        client.requests.clear();
        ended.start();
        for (int i = 0; i < before; ++i) {
            client.answer(httpAnswer(200, "1.2.0|"));
        }
        ending.expectMessage(u"Error 404"_s, u"Document not found"_s, PromptIcon::Warning);
        client.answer(httpAnswer(404, "1.2.0|"));
        EXPECT_FALSE(client.isWaiting());
        EXPECT_EQ(client.requests.size(), static_cast<std::size_t>(before) + 1);
        EXPECT_EQ(screen.closings, 0);
    }
}

} // namespace
