#include "shell/browser/DocumentScheme.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The canonical path of a file that lies in the folder or below; empty for every other one, and for one that is
// missing.
QString pathInFolder(const QString& folder, const QString& path)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QFileInfo file(QFileInfo(path).canonicalFilePath());
    if (root.isEmpty() || !file.isFile() || !file.filePath().startsWith(root + u'/')) {
        return {};
    }
    return file.filePath();
}

} // namespace

DocumentScheme::DocumentScheme(const QString& picturesFolder) : m_picturesFolder(picturesFolder) {}

// No flags: the scheme is not local, so its pages reach no files, and is allowed no fetch.
void DocumentScheme::registerScheme()
{
    QWebEngineUrlScheme scheme(name());
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QByteArray DocumentScheme::name()
{
    return "tarnwick-preview"_ba;
}

QUrl DocumentScheme::documentUrl()
{
    return QUrl(QString::fromLatin1(name()) + ":/"_L1);
}

bool DocumentScheme::isOwn(const QUrl& url)
{
    return url.scheme() == QLatin1StringView(name());
}

bool DocumentScheme::isDocument(const QUrl& url)
{
    return url.adjusted(QUrl::RemoveFragment) == documentUrl();
}

// The mark at its head tells the encoding, whatever the page says of itself.
void DocumentScheme::setDocument(const QString& text)
{
    m_document = "\xEF\xBB\xBF"_ba + text.toUtf8();
}

void DocumentScheme::requestStarted(QWebEngineUrlRequestJob* job)
{
    // The program's own request comes from no document, and is for the document; a document asks for pictures too.
    const bool isFromUs = job->initiator().isEmpty();
    const bool isForDocument = isDocument(job->requestUrl());
    const bool mayAsk = isFromUs ? isForDocument : isOwn(job->initiator());
    if (job->requestMethod() != "GET"_ba || !mayAsk) {
        job->fail(QWebEngineUrlRequestJob::RequestDenied);
    } else if (isForDocument) {
        auto* bytes = new QBuffer(job);
        bytes->setData(m_document);
        job->reply("text/html"_ba, bytes);
    } else {
        replyWithPicture(*job);
    }
}

void DocumentScheme::replyWithPicture(QWebEngineUrlRequestJob& job) const
{
    const QString path = pathInFolder(m_picturesFolder, job.requestUrl().path(QUrl::FullyDecoded));
    const QString type = path.isEmpty() ? QString() : QMimeDatabase().mimeTypeForFile(path).name();
    auto file = std::make_unique<QFile>(path);
    if (!type.startsWith("image/"_L1) || !file->open(QIODevice::ReadOnly)) {
        job.fail(QWebEngineUrlRequestJob::RequestDenied);
        return;
    }
    file->setParent(&job);
    job.reply(type.toLatin1(), file.release());
}
