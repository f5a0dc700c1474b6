// How the program and the hosted shop talk: the bytes of a request, and what an answer means. One POST per file, always
// in the same hand-made multipart body; docs/upload-protocol.md has it for whoever writes the server side.
#pragma once

#include "publish/HttpClient.h"

#include <QByteArray>
#include <QString>

class UserPrompts;

// The server's two pages, relative to the base URL.
inline constexpr QLatin1StringView UploadURL("admin/upload.php");
inline constexpr QLatin1StringView ListURL("admin/list.php");

// What an answer is taken for when it stops the upload.
inline constexpr QLatin1StringView errorResult("error");

// The same for every request. Servers of this protocol expect the comma.
QByteArray requestContentType();

// What was typed, with "http://" in front and "/" behind where they are missing. The case counts: a scheme in another
// case, and a secure one, deliberately get a second scheme in front.
QString normalizedBaseUrl(const QString& typed);

// The bytes of a text in a request: one per character (Windows-1252) where that can hold it, else UTF-8.
QByteArray requestText(const QString& text);

// Login, password (in clear) and program version: the whole body of a request for the list, and the head of all others.
// It ends with an opening boundary and has no closing one; this is what the server expects.
QByteArray requestHead(const QString& login, const QString& password, const QString& version);

// The body of a request that carries one file, whose bytes come through as they are. `head` is requestHead's.
QByteArray uploadBody(const QByteArray& head, const QString& fileName, const QByteArray& contentType,
                      const QByteArray& file);

// True for bytes that a body cannot carry whole: one of their lines begins with the boundary, so that the server would
// take what follows for a field or a file of its own. A line ends at LF, with or without a CR ahead of it.
bool holdsBoundary(const QByteArray& bytes);
// How the boundary stands at the beginning of such a line.
QString boundaryText();

// The text of an answer. A server holds file names as they came to it, so each line is UTF-8 or Windows-1252 by itself.
QString answerText(const QByteArray& body);

// Reads an answer, which must be one without a failure: its text, or the word "error". Shows a box where the answer is
// a refusal. A status other than 200 shows its box and still gives the text: deliberately, it does not stop an upload
// by itself.
QString readAnswer(const HttpAnswer& answer, UserPrompts& prompts);
