#include "shell/TemplateVersions.h"

#include "base/ApplicationTitle.h"
#include "base/DelimitedFields.h"
#include "base/ProgramVersion.h"
#include "base/TextFile.h"
#include "design/PageTable.h"

using namespace Qt::StringLiterals;

bool CheckTemplateVersion(const QString& name, const ApplicationFolder& folder, UserPrompts& prompts,
                          const std::function<void()>& closeWindow)
{
    const QString text = readTextFile(folder.templatesFolder() + name + u".html"_s).text;
    const QString comment = delimitedFields(text).value(0);
    const QString version = comment.mid(4, qMax<qsizetype>(0, comment.size() - 7)); // without "<!--" and "-->"
    if (version == programVersion()) {
        return true;
    }
    prompts.showMessage(applicationTitle(),
                        u"Application version doesn't match version of temlate '"_s + name + u".html'\r\n"_s,
                        PromptIcon::Critical);
    closeWindow();
    return false;
}

void CheckAllTemplateVersions(const ApplicationFolder& folder, UserPrompts& prompts,
                              const std::function<void()>& closeWindow)
{
    for (const QString& name : pageNamesBy(&PageRow::checking)) {
        CheckTemplateVersion(name, folder, prompts, closeWindow);
    }
}
