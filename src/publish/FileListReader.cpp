#include "publish/FileListReader.h"

#include "base/RuntimeError.h"
#include "base/UserPrompts.h"
#include "publish/VendorAddresses.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString upgradeText()
{
    const QStringList lines{
        u"You don't have the latest version of the software."_s,
        u"To upgrade:"_s,
        u"Backup your store."_s,
        u"Download the latest version."_s,
        u"Uninstall current version and install the new one."_s,
        u"Restore your store."_s,
        u"For more info go to "_s + VendorAddresses::upgrade(),
    };
    return lines.join("\r\n"_L1);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// A size in decimal, in whatever locale.
qint32 sizeFromText(QStringView text)
{
    const QStringView digits = text.startsWith(u'-') ? text.sliced(1) : text;
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit)) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    bool fits = false;
    const int size = text.toInt(&fits);
    if (!fits) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return size;
}

clsFileProp parseLine(QStringView line)
{
    const qsizetype first = line.indexOf(u'|');
    const qsizetype second = first < 0 ? -1 : line.indexOf(u'|', first + 1);
    if (second < 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return {line.first(first).toString(), sizeFromText(line.sliced(first + 1, second - first - 1).trimmed()),
            line.sliced(second + 1).toString()};
}

} // namespace

ServerFileList parseFileLines(QStringView lines)
{
    ServerFileList list;
    qsizetype at = 0;
    for (qsizetype end = lines.indexOf("\r\n"_L1); end >= 0; end = lines.indexOf("\r\n"_L1, at)) {
        const clsFileProp file = parseLine(lines.sliced(at, end - at));
        list.Add(file, file.fileName);
        at = end + 2;
    }
    return list;
}

bool readFileList(const QString& answer, const QString& programVersion, ServerFileList& list, UserPrompts& prompts)
{
    list.Clear();
    const qsizetype versionEnd = answer.indexOf(u'|');
    if (versionEnd < 0) {
        return false;
    }
    if (QStringView(answer).first(versionEnd) != programVersion) {
        prompts.showMessage(u"Uploading canceled"_s, upgradeText(), PromptIcon::Warning);
        return false;
    }
    try {
        list = parseFileLines(QStringView(answer).sliced(versionEnd + 1));
    } catch (const RuntimeError& error) {
        prompts.showMessage(u"Error %1"_s.arg(static_cast<int>(error.number())), error.description() + "\r\n"_L1,
                            PromptIcon::Warning);
        return false;
    }
    return true;
}
