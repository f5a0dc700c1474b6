// The preview's document and its pictures, served from memory and from pictures/ under an address scheme of the
// program's own. A scheme of its own shows documents of any size, keeps one entry in the history, and gives a page no
// way to other files: only pictures leave the disk, and only to our own document. The preview's browser owns the
// handler.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

class DocumentScheme : public QWebEngineUrlSchemeHandler
{
    Q_OBJECT

public:
    // The pictures/ folder, the only one that files are read from.
    explicit DocumentScheme(const QString& picturesFolder);

    // To be called once, before the application object is made.
    static void registerScheme();
    static QByteArray name();
    // The address of the document.
    static QUrl documentUrl();
    // True for an address of the scheme, whatever it stands for.
    static bool isOwn(const QUrl& url);
    // True for the document itself and for a place in it.
    static bool isDocument(const QUrl& url);

    // What the next request for the document gets.
    void setDocument(const QString& text);

    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    void replyWithPicture(QWebEngineUrlRequestJob& job) const;

    QString m_picturesFolder;
    QByteArray m_document;
};
