// How the look follows the desktop, with a desktop portal of the test's own on a bus of its own.
#include "look/DesktopScheme.h"

#include "Portal.h"
#include "look/Theme.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QDBusContext>
#include <QDBusMessage>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString appearance = Portal::appearance();
const QString colorScheme = Portal::colorScheme();

// A message bus that lives as long as this.
class Bus
{
public:
    Bus()
    {
        writeFile(m_folder.filePath(u"bus.conf"_s),
                  "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                  "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
                  "<busconfig><type>session</type><listen>unix:dir=" +
                      m_folder.path().toUtf8() +
                      "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                      "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow own=\"*\"/>"
                      "<allow user=\"*\"/></policy></busconfig>");
        m_daemon.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--nopidfile"_s, u"--print-address=1"_s,
                                          u"--config-file="_s + m_folder.filePath(u"bus.conf"_s)});
        EXPECT_TRUE(m_daemon.waitForStarted()) << "dbus-daemon is not installed";
        EXPECT_TRUE(m_daemon.waitForReadyRead(10'000)) << m_daemon.readAllStandardError().constData();
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~Bus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    const QString& address() const { return m_address; }
    QDBusConnection connection(const QString& name) const { return QDBusConnection::connectToBus(m_address, name); }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};

class DesktopSchemeTest : public testing::Test
{
protected:
    DesktopSchemeTest() : portal(bus.connection(u"portal"_s)), ours(bus.connection(u"program"_s))
    {
        QObject::connect(&desktop, &DesktopScheme::told, &desktop, [this](Scheme scheme) { told.push_back(scheme); });
    }
    void TearDown() override
    {
        QDBusConnection::disconnectFromBus(u"portal"_s);
        QDBusConnection::disconnectFromBus(u"program"_s);
    }

    // Until the portal was asked and its answer has come.
    void askPortal()
    {
        desktop.follow(ours);
        EXPECT_TRUE(QTest::qWaitFor([&] { return portal.questions == 1; }));
        QTest::qWait(50);
    }

    Bus bus;
    Portal portal;
    QDBusConnection ours;
    DesktopScheme desktop;
    std::vector<Scheme> told;
};

TEST_F(DesktopSchemeTest, TellsWhatThePortalSaysAtTheStart)
{
    const struct
    {
        uint preference;
        bool wrapsTwice;
        std::vector<Scheme> told;
    } rows[] = {
        {1, true, {Scheme::Dark}}, {1, false, {Scheme::Dark}}, {2, true, {Scheme::Light}}, {0, true, {}}, {7, true, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.preference);
        told.clear();
        portal.questions = 0;
        portal.preference = row.preference;
        portal.wrapsTwice = row.wrapsTwice;
        askPortal();
        EXPECT_EQ(told, row.told);
    }
}

TEST_F(DesktopSchemeTest, TellsEveryChangeOfThatSettingAndOfNoOther)
{
    askPortal();
    const struct
    {
        QString group;
        QString key;
        uint value;
    } changes[] = {
        {appearance, colorScheme, 1},
        {appearance, u"contrast"_s, 1},
        {u"org.gnome.desktop.interface"_s, colorScheme, 2},
        {appearance, colorScheme, 2},
        {appearance, colorScheme, 1},
        {appearance, colorScheme, 0}, // dark was switched off
    };
    for (const auto& change : changes) {
        portal.change(change.group, change.key, change.value);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 4; }));
    QTest::qWait(50);
    EXPECT_EQ(told, (std::vector<Scheme>{Scheme::Dark, Scheme::Light, Scheme::Dark, Scheme::Light}));
}

TEST_F(DesktopSchemeTest, WaitsForNoPortalThatIsSlow)
{
    portal.isSilent = true;
    portal.preference = 1;
    askPortal(); // comes back, though no answer does
    EXPECT_TRUE(told.empty());
    portal.change(appearance, colorScheme, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == std::vector<Scheme>{Scheme::Dark}; }));
}

TEST_F(DesktopSchemeTest, TellsNothingWhereThereIsNoBus)
{
    desktop.follow(QDBusConnection(u"none"_s));
    QTest::qWait(50);
    EXPECT_TRUE(told.empty());
}

// Last: a program has but one session bus.
TEST(DesktopLook, ChangesInAllWindowsWhileTheProgramRuns)
{
    const Bus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    Portal portal(bus.connection(u"portal"_s));
    portal.preference = 1;
    QWidget window;
    window.show();
    ASSERT_EQ(currentScheme(), Scheme::Light);
    followDesktop(*qApp);
    EXPECT_EQ(currentScheme(), Scheme::Light); // the start goes on
    const auto shows = [&window](Scheme scheme) {
        return QTest::qWaitFor(
            [&] { return window.palette().color(QPalette::Window) == toneIn(scheme, Tone::Ground); });
    };
    EXPECT_TRUE(shows(Scheme::Dark));
    portal.change(appearance, colorScheme, 2);
    EXPECT_TRUE(shows(Scheme::Light));
    QDBusConnection::disconnectFromBus(u"portal"_s);
}

} // namespace
