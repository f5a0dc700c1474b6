#include "publish/UploadLog.h"

#include "base/FileBytes.h"
#include "base/RuntimeError.h"
#include "base/TextFile.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostItems = 4;

// A failure tells names from the shop file, which may hold anything; it has one line here.
QString asOneLine(QString text)
{
    return text.replace(u'\r', u' ').replace(u'\n', u' ');
}

// The items of the file, up to one more than it may have. An empty line is an empty item.
QStringList itemsOf(const QString& text)
{
    QStringList items;
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size() && items.size() <= mostItems; ++at) {
        if (text[at] != u',' && text[at] != u'\r' && text[at] != u'\n') {
            continue;
        }
        items.append(text.sliced(start, at - start));
        if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n') {
            ++at;
        }
        start = at + 1;
    }
    if (start < text.size()) {
        items.append(text.sliced(start));
    }
    return items;
}

} // namespace

void writeUploadLog(const ApplicationFolder& folder, const QString& login, const QString& address,
                    const std::optional<TransferFailure>& failure)
{
    QString text = login + "\r\n"_L1 + address + "\r\n"_L1;
    if (failure) {
        text += u"%1|%2\r\n"_s.arg(asOneLine(failure->ErrorDescription), QString::number(failure->ErrorNumber));
    }
    writeFileBytes(folder.uploadLogFile(), encodeText(text, TextEncoding::Utf8));
}

RememberedUpload readUploadLog(const ApplicationFolder& folder)
{
    QStringList items;
    try {
        items = itemsOf(readTextFile(folder.uploadLogFile()).text);
    } catch (const RuntimeError&) {
        return {};
    }
    RememberedUpload remembered;
    if (items.size() > mostItems) {
        return remembered;
    }
    if (!items.isEmpty()) {
        remembered.login = items[0];
    }
    if (items.size() > 1) {
        remembered.address = items[1];
    }
    return remembered;
}
