// The sample shop on its way to a real server, and what arrives there.
#include "publish/dialog/PhpServer.h"
#include "publish/dialog/UploadDialogTest.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class PublishToServerTest : public UploadDialogTest
{
protected:
    void SetUp() override
    {
        useSampleShop(files);
        ASSERT_TRUE(server.start()) << server.why().toStdString();
    }
    // Publishes and returns what the server was sent, without the request for its list.
    std::vector<PhpServer::Received> publish()
    {
        open();
        expectComplete();
        upload(server.address());
        EXPECT_FALSE(dialog->isVisible());
        std::vector<PhpServer::Received> received = server.takeRequests();
        EXPECT_FALSE(received.empty());
        if (!received.empty()) {
            EXPECT_EQ(received.front().page, u"list"_s);
            received.erase(received.begin());
        }
        return received;
    }
    static QStringList namesOf(const std::vector<PhpServer::Received>& received, const QString& type)
    {
        QStringList names;
        for (const PhpServer::Received& file : received) {
            if (file.type == type) {
                names << file.name;
            }
        }
        return names;
    }
    void expectSameFile(const QString& relative)
    {
        EXPECT_TRUE(fileBytes(server.path(relative)) == fileBytes(files.path(relative))) << relative.toStdString();
    }

    PhpServer server;
};

TEST_F(PublishToServerTest, EveryFileArrivesAsItIs)
{
    const std::vector<PhpServer::Received> received = publish();
    const QStringList pictures = namesOf(received, u"image/gif"_s);
    EXPECT_GT(pictures.size(), 50);
    for (const QString& picture : pictures) {
        expectSameFile("pictures/"_L1 + picture);
    }
    EXPECT_TRUE(pictures.contains(u"logo.png"_s));
    EXPECT_TRUE(pictures.contains(u"teapot-moor.png"_s));
    const QStringList templates = namesOf(received, u"text/html"_s);
    EXPECT_EQ(templates.size(), 14);
    for (const QString& name : templates) {
        expectSameFile("templates/"_L1 + name);
    }
    expectSameFile(u"shop.xml"_s);
    EXPECT_EQ(received.size(), 1U + static_cast<std::size_t>(pictures.size() + templates.size()));
    for (const PhpServer::Received& file : received) {
        EXPECT_EQ(file.page, u"upload"_s);
        EXPECT_EQ(file.version, u"1.2.0"_s);
    }
    EXPECT_EQ(received[0].sentName, files.folder().path() + "\\shop.xml"_L1);
    EXPECT_EQ(received[1].sentName, files.folder().path() + "\\pictures\\"_L1 + received[1].name);
    EXPECT_EQ(received.back().sentName, u"payed_ok.html"_s);
}

TEST_F(PublishToServerTest, ASecondUploadSendsNoPictureAndAChangedSizeSendsThatOneAlone)
{
    publish();
    EXPECT_EQ(publish().size(), 15U); // the shop and the templates

    QFile picture(files.path(u"pictures/teapot-moor.png"_s));
    ASSERT_TRUE(picture.open(QIODevice::Append));
    picture.write("x");
    picture.close();
    const std::vector<PhpServer::Received> received = publish();
    EXPECT_EQ(received.size(), 16U);
    EXPECT_EQ(namesOf(received, u"image/gif"_s), QStringList{u"teapot-moor.png"_s});
    expectSameFile(u"pictures/teapot-moor.png"_s);

    // Equal size counts as equal content.
    QByteArray other = fileBytes(files.path(u"pictures/teapot-moor.png"_s));
    other.fill('y');
    writeFile(files.path(u"pictures/teapot-moor.png"_s), other);
    EXPECT_EQ(publish().size(), 15U);
}

TEST_F(PublishToServerTest, PicturesWithLettersOutsideOfAsciiAreKnownAgain)
{
    const QStringList names{u"größe.png"_s, u"чашка.png"_s};
    QByteArray shop = "<Tarnwick><Shop><Category>";
    for (const QString& name : names) {
        shop += "<Product><Picture>" + name.toUtf8() + "</Picture></Product>";
        writeFile(files.path("pictures/"_L1 + name), "picture of " + name.toUtf8());
    }
    writeFile(files.path(u"shop.xml"_s), shop + "</Category><ShopDesign/></Shop></Tarnwick>");
    EXPECT_EQ(publish().size(), 17U);
    EXPECT_EQ(publish().size(), 15U);
}

TEST_F(PublishToServerTest, AWrongPasswordIsRefusedAndTheRightOneTakenAfterwards)
{
    open();
    typeAll(server.address(), u"anna"_s, u"wrong"_s);
    prompts.expectMessage(u"Error 0"_s,
                          u"Incorrect login or password! In case you forgot your password please visit:\r\n"
                          "http://www.example.com/password"_s,
                          PromptIcon::Warning);
    click("OkBtn");
    waitForEnd();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(server.takeRequests().size(), 1U);
    EXPECT_FALSE(QFile::exists(server.path(u"shop.xml"_s)));
    publish();
    expectSameFile(u"shop.xml"_s);
}

} // namespace
