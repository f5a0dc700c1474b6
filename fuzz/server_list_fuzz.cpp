// The reader of the server's file list. The bytes are the body of an answer.
//
// Promised: lines are refused with error 5, 6, 13 or 457 only; what is read is what a plain walk over the lines gives,
// written here once more from the rules of the format; a whole answer is read when its version is the program's and its
// lines are right, shows at most one box, and leaves the list empty otherwise.
#include "FuzzTarget.h"
#include "base/RuntimeError.h"
#include "base/UserPrompts.h"
#include "publish/FileListReader.h"
#include "publish/UploadProtocol.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class CountingPrompts : public UserPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override { ++boxes; }
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override { return PromptAnswer::No; }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }

    int boxes = 0;
};

// The number of the error that reading the lines raises, 0 for none.
int errorOfLines(const QString& lines, ServerFileList& list)
{
    try {
        list = parseFileLines(lines);
        return 0;
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.number());
    }
}

// The rules of the lines, told plainly: each line's pieces, cut by "|", have a name, a size and at least one more.
void plainWalk(const QString& lines, const ServerFileList& list)
{
    QStringList rows = lines.split(u"\r\n"_s);
    rows.removeLast();
    promise(rows.size() == list.Count(), "one entry for each line");
    for (int i = 1; i <= list.Count(); ++i) {
        const QStringList pieces = rows[i - 1].split(u'|');
        const clsFileProp& file = list.Item(i);
        promise(pieces.size() >= 3, "a line has two bars");
        promise(file.fileName == pieces[0], "the name stands ahead of the first bar");
        promise(file.thirdValue == pieces.mid(2).join(u'|'), "the rest stands behind the second bar");
        promise(pieces[1].trimmed().toLongLong() == file.size, "the size stands between the bars");
        promise(list.indexOf(file.fileName) == i, "the name is the key");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString answer = answerText(bytes);
    const qsizetype bar = answer.indexOf(u'|');
    const QString lines = answer.mid(bar + 1);

    ServerFileList list;
    const int error = errorOfLines(lines, list);
    promise(error == 0 || error == 5 || error == 6 || error == 13 || error == 457, "only the known errors are raised");
    if (error == 0) {
        plainWalk(lines, list);
    }

    CountingPrompts prompts;
    ServerFileList whole;
    const bool read = readFileList(answer, u"1.2.0"_s, whole, prompts);
    promise(read == (bar >= 0 && answer.first(bar) == u"1.2.0" && error == 0), "version and lines decide");
    promise(prompts.boxes == (read || bar < 0 ? 0 : 1), "one box for what is wrong, none for no list");
    promise(whole.Count() == (read ? list.Count() : 0), "the list is whole or empty");
    return 0;
}
