#include "Run.h"

#include "KeptModel.h"
#include "Monkey.h"
#include "MonkeyPrompts.h"
#include "Notes.h"
#include "Playground.h"
#include "Watchdog.h"
#include "publish/dialog/RawServer.h"

#include <QSettings>
#include <QTest>

#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// Ends the process as the program's own handler does, at once.
class EndingErrors : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override
    {
        note(u"ends by error %1: %2"_s.arg(static_cast<int>(error.number())).arg(error.description()));
        std::_Exit(hasWindow ? FatalError : FailedStart);
    }

    bool hasWindow = false;
};

// A server that mostly behaves, at times not at all.
class OddServer : public RawServer
{
public:
    explicit OddServer(std::uint32_t seed) : m_dice(seed)
    {
        handler = [this](QTcpSocket& socket, const Request& request) {
            constexpr std::array answers{"401",    "500 x",       "error",      "<html>",
                                         "1.2.0|", "1.2.0|a|b|c", "9.9.9|\r\n", "|||"};
            switch (m_dice.below(8)) {
            case 0:
                socket.abort();
                break;
            case 1:
                sendAnswer(socket, 200, m_dice.pick(answers));
                break;
            case 2:
                sendAnswer(socket, 404, "gone");
                break;
            default:
                m_shop(socket, request);
            }
        };
    }

private:
    Dice m_dice; // of its own: when a request comes is not the run's affair
    Handler m_shop = shopWithFiles("cup.png|12|20.11.2026\r\n");
};

// The program on the run's folder, with one window after another.
class Program
{
public:
    Program(const QString& folder, std::uint32_t seed, PlayedBy player)
        : m_player(player), m_dice(seed), m_playground(folder, m_dice, player == PlayedBy::CarefulOwner), m_server(seed)
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_playground.settings());
    }

    void start()
    {
        note(u"start"_s);
        Watchdog::feed();
        m_errors.hasWindow = false;
        m_prompts.wasOfferedUnsaved = false;
        const ProgramServices services{m_playground.folder(),
                                       m_prompts,
                                       m_clock,
                                       m_errors,
                                       [] { note(u"  starts anew"_s); },
                                       UnsavedShop::Window::First,
                                       [this] { return fileCallsThatTell([this] { noteModel(); }); }};
        m_window = guarded(m_errors, [&] {
            return startProgram(services, [this](QWidget* parent) {
                m_preview = new RecordingPreview(parent);
                return PreviewParts{m_preview, m_preview,
                                    [this](PreviewNavigation* navigation) { m_preview->navigation = navigation; }};
            });
        });
        m_errors.hasWindow = true;
        m_window->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(m_window.get())); // else the first keys go here or there
    }

    QString play(int& stepsLeft)
    {
        return Monkey(*m_window, *m_preview, m_dice, m_player, stepsLeft, m_server.address()).play();
    }

    bool hasUnsaved() const { return QFile::exists(m_playground.folder().unsavedShopFile()); }
    // Whether the start has taken what was not saved, and has made the same shop of it.
    bool isAsItWasKept() const
    {
        return m_prompts.wasOfferedUnsaved && outline() == fileBytes(m_playground.keptModel());
    }

    QByteArray save()
    {
        m_window->findChild<QAction*>(u"mnuSaveShop"_s)->trigger();
        Watchdog::calmDown();
        return fileBytes(m_playground.folder().shopFile());
    }

private:
    QByteArray outline() const { return outlineOf(*m_window->session().shop).join(u'\n').toUtf8(); }
    void noteModel() const { writeFile(m_playground.keptModel(), outline()); }

    PlayedBy m_player;
    Dice m_dice;
    Playground m_playground;
    OddServer m_server;
    MonkeyPrompts m_prompts{m_dice, m_playground, m_player == PlayedBy::CarefulOwner};
    FixedClock m_clock{QDate(2026, 7, 15)};
    EndingErrors m_errors;
    RecordingPreview* m_preview = nullptr; // the window's
    std::unique_ptr<MainForm> m_window;
};

} // namespace

int runMonkey(const QString& folder, std::uint32_t seed, int steps, PlayedBy player)
{
    Program program(folder, seed, player);
    while (steps > 0) {
        program.start();
        const QString disagreement = program.play(steps);
        if (!disagreement.isEmpty()) {
            note(u"Out of step: "_s + disagreement);
            return OutOfStep;
        }
    }
    return Done;
}

int checkShop(const QString& folder)
{
    Program program(folder, 1, PlayedBy::WildHands);
    QByteArray former;
    // Reading may simplify a shop, which shows in the second file. From then on nothing changes.
    for (int turn = 1; turn <= 3; ++turn) {
        const bool hadUnsaved = program.hasUnsaved();
        program.start();
        if (hadUnsaved && !program.isAsItWasKept()) {
            note(u"What was not saved has changed."_s);
            return WorkLost;
        }
        const QByteArray saved = program.save();
        if (turn == 3 && saved != former) {
            note(u"The shop changes with every save."_s);
            return Unsettled;
        }
        former = saved;
    }
    return Done;
}
