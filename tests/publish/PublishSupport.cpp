#include "publish/PublishSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString dataFolder = QStringLiteral(TARNWICK_SOURCE_DIR "/tests/data/upload/");

QByteArray fileNameIn(const QByteArray& body)
{
    const QByteArray mark = "filename=\"";
    const qsizetype start = body.indexOf(mark) + mark.size();
    return body.mid(start, body.indexOf('"', start) - start);
}

} // namespace

QByteArray uploadData(const QString& name)
{
    return fileBytes(dataFolder + name);
}

QByteArray expectedRequest(const QString& name, const ApplicationFolder& folder)
{
    return uploadData("requests/"_L1 + name).replace("@FOLDER@", folder.path().toUtf8());
}

QStringList expectedSequence()
{
    return QDir(dataFolder + "requests"_L1).entryList({u"[0-9][0-9]-*.bin"_s}, QDir::Files, QDir::Name);
}

void copyFiles(const QString& from, const QString& to)
{
    QDirIterator entries(from, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString source = entries.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(target.section(u'/', 0, -2));
        ASSERT_TRUE(QFile::copy(source, target)) << source.toStdString();
    }
}

void useSmallShop(const TemporaryShopFolder& files)
{
    copyFiles(dataFolder + "shop/"_L1, files.folder().path() + u'/');
}

void useSampleShop(const TemporaryShopFolder& files)
{
    copyFiles(QStringLiteral(TARNWICK_SOURCE_DIR "/app/"), files.folder().path() + u'/');
}

HttpAnswer httpAnswer(int status, const QByteArray& body)
{
    return {status, body, std::nullopt};
}

HttpAnswer httpFailure(const QString& description, int number)
{
    return {0, {}, TransferFailure{description, number}};
}

void FakeHttpClient::post(const QString& url, const QByteArray& contentType, const QByteArray& body, const Done& done)
{
    EXPECT_FALSE(isWaiting()) << "two requests at a time";
    requests.push_back({url, contentType, body});
    m_done = done;
}

void FakeHttpClient::answer(const HttpAnswer& answer)
{
    ASSERT_TRUE(isWaiting());
    const Done done = std::exchange(m_done, nullptr);
    done(answer);
}

void FakeHttpClient::answerAll(const QByteArray& lines)
{
    answer(httpAnswer(200, "1.2.0|" + lines));
    while (isWaiting()) {
        answer(httpAnswer(200, "ok"));
    }
}

QByteArray FakeHttpClient::lastFileName() const
{
    return requests.empty() ? QByteArray() : fileNameIn(requests.back().body);
}

QStringList FakeHttpClient::sentFileNames() const
{
    QStringList names;
    for (std::size_t i = 1; i < requests.size(); ++i) {
        names << QString::fromUtf8(fileNameIn(requests[i].body));
    }
    return names;
}
