#include "look/Theme.h"
#include "shell/BrowserPreview.h"
#include "shell/DialogPrompts.h"
#include "shell/FatalErrorBox.h"
#include "shell/MainForm.h"
#include "shell/StartUp.h"
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>
#include <QProcess>

#include <csignal>

int main(int argc, char** argv)
{
    // Writing a file larger than the limit fails with an error then, instead of killing the process.
    std::signal(SIGXFSZ, SIG_IGN);
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    applyTheme(application);

    DialogPrompts prompts;
    FatalErrorBox errors(prompts, [] { return false; });
    const SystemClock clock;
    const ProgramServices services{ApplicationFolder(QApplication::applicationDirPath()), prompts, clock, errors,
                                   [] { QProcess::startDetached(QApplication::applicationFilePath(), {}); }};

    const std::unique_ptr<MainForm> window =
        guarded(errors, [&] { return startProgram(services, browserPreview(services.folder, errors)); });
    prompts.setParentWindow(window.get());
    followDesktop(application);
    return QApplication::exec();
}
