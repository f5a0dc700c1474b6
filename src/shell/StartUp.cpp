#include "shell/StartUp.h"

#include "model/ShopSession.h"
#include "shell/MainForm.h"

using namespace Qt::StringLiterals;

std::unique_ptr<MainForm> startProgram(const ProgramServices& services, const PreviewFactory& makePreview)
{
    Q_INIT_RESOURCE(icons); // a static library's resources have to be asked for
    auto session = std::make_unique<ShopSession>(services.folder, services.prompts, services.clock);
    LoadLog& log = session->log;
    log.reset();
    session->LoadCountries();
    log.WriteLoadLog(u"Countries loaded"_s);
    auto unsaved = std::make_unique<UnsavedShop>(*session, services.window, services.fileCalls());
    auto window = std::make_unique<MainForm>(std::move(session), std::move(unsaved), makePreview, services.startAgain,
                                             services.errors);
    log.WriteLoadLog(u"MainForm loaded"_s);
    window->show();
    log.WriteLoadLog(u"MainForm shown"_s);
    return window;
}
