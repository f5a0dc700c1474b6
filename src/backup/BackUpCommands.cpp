#include "backup/BackUpCommands.h"

#include "backup/BackUpRestore.h"
#include "backup/clsPacker.h"
#include "base/RuntimeError.h"

#include <QFileInfo>

#include <new>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The lines are an aid: a full disk that takes none of them must not end the program, nor hide how the backup went.
void logLeftOut(LoadLog& log, const QStringList& fileSpecs)
{
    try {
        for (const QString& fileSpec : fileSpecs) {
            log.WriteLoadLog(u"Backup: left out, since it cannot be packed: "_s + fileSpec);
        }
    } catch (const RuntimeError&) {
        // The report counts the files all the same.
    } catch (const std::bad_alloc&) {
        // So it does when memory is short.
    }
}

} // namespace

std::optional<BackUpReport> backUpFromMenu(const BackUpServices& services)
{
    clsPacker packer(services.folder, services.prompts, services.clock);
    packer.WriteError = [&services] {
        services.prompts.showMessage(services.plainTitle, u"Backuping: file saving error ocured"_s, PromptIcon::None);
    };
    const std::optional<QString> answer = services.prompts.askText(u"Backing up"_s, u"Enter file name"_s);
    if (!answer || answer->isEmpty()) {
        return std::nullopt;
    }
    // Made before anything is looked at, so that it is there even when the backup fails.
    const QString folder = services.folder.backupsFolder();
    makeFolder(folder);
    QString name = *answer;
    const bool made = packer.BackUp(name);
    logLeftOut(services.log, packer.leftOut());
    if (!made) {
        services.prompts.showMessage(u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical);
        return std::nullopt;
    }
    return BackUpReport{name, QFileInfo(folder + name).size(), packer.leftOut().size()};
}

bool restoreFromMenu(const BackUpServices& services, const std::function<void()>& whenRestored)
{
    const QString path =
        services.prompts.chooseFile(services.folder.backupsFolder(), u"Packed shops (*.kvb *.KVB);;All files (*)"_s);
    if (path.isEmpty()) {
        return false;
    }
    clsPacker packer(services.folder, services.prompts, services.clock);
    if (!packer.Restore(path)) {
        services.prompts.showMessage(u"Error"_s, u"Restore backup is failed"_s, PromptIcon::Critical);
        return false;
    }
    whenRestored();
    services.prompts.showMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                                 PromptIcon::Information);
    return true;
}
