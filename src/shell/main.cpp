#include "look/Theme.h"
#include "shell/BrowserPreview.h"
#include "shell/DialogPrompts.h"
#include "shell/FatalErrorBox.h"
#include "shell/MainForm.h"
#include "shell/StartUp.h"
#include "shell/TakenFolder.h"
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>

#include <csignal>
#include <cstdlib>

int main(int argc, char** argv)
{
    // Writing a file larger than the limit fails with an error then, instead of killing the process.
    std::signal(SIGXFSZ, SIG_IGN);
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    applyTheme(application);

    const ApplicationFolder folder(QApplication::applicationDirPath());
    TakenFolder taken(folder);
    DialogPrompts prompts;
    if (!taken.mayOpen(prompts)) {
        return EXIT_SUCCESS;
    }
    FatalErrorBox errors(prompts, [&] {
        return taken.window() == UnsavedShop::Window::First && QFileInfo::exists(folder.unsavedShopFile());
    });
    const SystemClock clock;
    const auto startAgain = [&taken] {
        taken.giveUp(); // so that the new process asks and waits for nothing
        QProcess::startDetached(QApplication::applicationFilePath(), {});
    };
    const ProgramServices services{folder, prompts, clock, errors, startAgain, taken.window()};

    const std::unique_ptr<MainForm> window =
        guarded(errors, [&] { return startProgram(services, browserPreview(services.folder, errors)); });
    prompts.setParentWindow(window.get());
    followDesktop(application);
    return QApplication::exec();
}
