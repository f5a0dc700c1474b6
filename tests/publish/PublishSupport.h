// What the tests of publishing share: a client that answers when it is told to, a screen without a window, and the
// files of tests/data/upload.
#pragma once

#include "base/ApplicationFolder.h"
#include "publish/HttpClient.h"
#include "publish/UploadScreen.h"
#include "support/TestSupport.h"

#include <vector>

// The bytes of a file in tests/data/upload.
QByteArray uploadData(const QString& name);
// A request's body as it has to be, for an application folder.
QByteArray expectedRequest(const QString& name, const ApplicationFolder& folder);
// The names of all requests that publishing the small shop to an empty server takes, in order.
QStringList expectedSequence();
// Copies all files below a folder into another; a failed test when one cannot be copied.
void copyFiles(const QString& from, const QString& to);
// Copies the small shop of tests/data/upload.
void useSmallShop(const TemporaryShopFolder& files);
// The whole sample shop of the program.
void useSampleShop(const TemporaryShopFolder& files);

HttpAnswer httpAnswer(int status, const QByteArray& body);
HttpAnswer httpFailure(const QString& description, int number);

class FakeHttpClient : public HttpClient
{
public:
    struct Request
    {
        QString url;
        QByteArray contentType;
        QByteArray body;
    };

    void post(const QString& url, const QByteArray& contentType, const QByteArray& body, const Done& done) override;
    void cancel() override { m_done = nullptr; }

    bool isWaiting() const { return m_done != nullptr; }
    // Answers the request under way.
    void answer(const HttpAnswer& answer);
    // Answers the list request with these lines and all others, as long as there are any, with "ok".
    void answerAll(const QByteArray& lines);
    // What the file part of the last request tells as its name.
    QByteArray lastFileName() const;
    // The same for all requests but the first.
    QStringList sentFileNames() const;

    std::vector<Request> requests;

private:
    Done m_done;
};

class FakeScreen : public UploadScreen
{
public:
    UploadFields fields() const override { return typed; }
    void setAddress(const QString& address) override { typed.address = address; }
    void setHourglass(bool on) override { hourglass = on; }
    void showProgress(int value) override { progress.push_back(value); }
    void closeScreen() override { ++closings; }

    UploadFields typed{QStringLiteral("http://shop.test/"), QStringLiteral("anna"), QStringLiteral("s3cret")};
    bool hourglass = false;
    std::vector<int> progress;
    int closings = 0;
};
