#include "publish/UploadProtocol.h"

#include "base/TextFile.h"
#include "base/UserPrompts.h"
#include "base/Utf8.h"
#include "publish/VendorAddresses.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* boundary = "AaB03x";

// An answer may be a page of any size, more than a box can show.
constexpr qsizetype longestShownAnswer = 4000;

QByteArray boundaryMark()
{
    return QByteArray("--") + boundary;
}

QByteArray openingBoundary()
{
    return boundaryMark() + "\r\n";
}

// The line that begins there, with its LF.
QByteArrayView lineAt(const QByteArray& body, qsizetype start)
{
    const qsizetype lineEnd = body.indexOf('\n', start);
    return QByteArrayView(body).sliced(start, (lineEnd < 0 ? body.size() : lineEnd + 1) - start);
}

QByteArray field(const char* name, const QString& value)
{
    return openingBoundary() + "Content-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" + requestText(value) +
           "\r\n";
}

struct StatusBox
{
    int status;
    QLatin1StringView text;
};

constexpr std::array statusBoxes{
    StatusBox{401, "Login or password isn't correct"_L1},
    StatusBox{404, "Document not found"_L1},
    StatusBox{500, "Server internal error"_L1},
};

QString textOfStatus(int status, const QString& responseText)
{
    const auto* known = std::find_if(statusBoxes.begin(), statusBoxes.end(),
                                     [status](const StatusBox& box) { return box.status == status; });
    if (known != statusBoxes.end()) {
        return known->text;
    }
    return "Uploading is failed.\r\n"_L1 + responseText.left(longestShownAnswer) +
           u"Error #%1\r\n"_s.arg(status); // deliberately without a line end ahead of it
}

void showRefusal(UserPrompts& prompts, int number, const QString& text)
{
    prompts.showMessage(u"Error %1"_s.arg(number), text, PromptIcon::Warning);
}

} // namespace

QByteArray requestContentType()
{
    return QByteArray("multipart/form-data, boundary=") + boundary;
}

QString normalizedBaseUrl(const QString& typed)
{
    QString url = typed;
    if (!url.startsWith("http://"_L1)) {
        url.prepend("http://"_L1);
    }
    if (!url.endsWith(u'/')) {
        url.append(u'/');
    }
    return url;
}

QByteArray requestText(const QString& text)
{
    return encodeWindows1252(text).value_or(text.toUtf8());
}

QByteArray requestHead(const QString& login, const QString& password, const QString& version)
{
    return field("username", login) + field("password", password) + field("version", version) + openingBoundary();
}

QByteArray uploadBody(const QByteArray& head, const QString& fileName, const QByteArray& contentType,
                      const QByteArray& file)
{
    const QByteArray partHead = "Content-Disposition: form-data; name=\"file[]\"; filename=\"" + requestText(fileName) +
                                "\"\r\nContent-Type: " + contentType + "\r\n\r\n";
    const QByteArray tail = QByteArray("\r\n--") + boundary + "--\r\n";
    QByteArray body;
    body.reserve(head.size() + partHead.size() + file.size() + tail.size());
    body.append(head).append(partHead).append(file).append(tail);
    return body;
}

bool holdsBoundary(const QByteArray& bytes)
{
    const QByteArray mark = boundaryMark();
    for (qsizetype at = bytes.indexOf(mark); at >= 0; at = bytes.indexOf(mark, at + 1)) {
        if (at == 0 || bytes[at - 1] == '\n') {
            return true;
        }
    }
    return false;
}

QString boundaryText()
{
    return QString::fromLatin1(boundaryMark());
}

QString answerText(const QByteArray& body)
{
    QString text;
    text.reserve(body.size());
    for (qsizetype at = 0; at < body.size();) {
        // Lines of one encoding are decoded together. A byte order mark counts only where a run begins.
        const QByteArrayView first = lineAt(body, at);
        const bool isUtf8 = isValidUtf8(first);
        qsizetype end = at + first.size();
        while (end < body.size()) {
            const QByteArrayView next = lineAt(body, end);
            if (isValidUtf8(next) != isUtf8 || next.startsWith("\xEF\xBB\xBF")) {
                break;
            }
            end += next.size();
        }
        text += decodeText(QByteArray::fromRawData(body.constData() + at, end - at)).text;
        at = end;
    }
    return text;
}

QString readAnswer(const HttpAnswer& answer, UserPrompts& prompts)
{
    QString responseText = answerText(answer.body);
    if (answer.status != 200) {
        showRefusal(prompts, answer.status, textOfStatus(answer.status, responseText));
        return responseText;
    }
    // The first three characters count, whatever follows them.
    const QStringView inBandStatus = QStringView(responseText).left(3);
    if (inBandStatus == "401"_L1) {
        showRefusal(prompts, 0,
                    "Incorrect login or password! In case you forgot your password please visit:\r\n"_L1 +
                        VendorAddresses::passwordRecovery());
        return errorResult;
    }
    if (inBandStatus == "500"_L1) {
        showRefusal(prompts, 0, u"Server internal error"_s);
        return errorResult;
    }
    return responseText;
}
