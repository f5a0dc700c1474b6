#include "Tour.h"
#include "shell/DialogPrompts.h"
#include "shell/FatalErrorBox.h"
#include "shell/Theme.h"
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>

namespace {

// A tour runs with nobody to press a button: boxes go to the standard error stream, questions are answered with No.
class SilentPrompts : public UserPrompts
{
public:
    void showMessage(const QString& title, const QString& text, PromptIcon /*icon*/) override
    {
        qWarning("%s: %s", qUtf8Printable(title), qUtf8Printable(text));
    }
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override { return PromptAnswer::No; }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }
};

} // namespace

int main(int argc, char** argv)
{
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    applyTheme(application);
    if (argc != 2) {
        qCritical("usage: tarnwick_tour FOLDER");
        return 2;
    }
    SilentPrompts prompts;
    FatalErrorBox errors(prompts);
    guarded(errors, [&] { Tour(QString::fromLocal8Bit(argv[1]), prompts, errors).walk(); });
    return 0;
}
