#include "look/DesktopScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settings = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;

enum Preference { NoPreference, PrefersDark, PrefersLight };

// An answer is wrapped once, or twice by older portals.
uint preferenceIn(QVariant value)
{
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value.toUInt();
}

} // namespace

void DesktopScheme::follow(QDBusConnection bus)
{
    // Any sender: to watch one by its name would have to wait for the bus.
    bus.connect(QString(), portalPath, settings, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, portalPath, settings, u"Read"_s);
    question << appearance << colorScheme;
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        takeAnswer(*call);
    });
}

void DesktopScheme::takeAnswer(const QDBusPendingCallWatcher& call)
{
    if (call.isError() || call.reply().arguments().isEmpty()) {
        return; // no portal, or one without the setting
    }
    switch (preferenceIn(call.reply().arguments().front())) {
    case PrefersDark:
        Q_EMIT told(Scheme::Dark);
        return;
    case PrefersLight:
        Q_EMIT told(Scheme::Light);
        return;
    default:
        return; // the desktop's palette has told
    }
}

void DesktopScheme::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearance && key == colorScheme) {
        // Whoever has no preference any more is back in the light: that is how a desktop's own switch turns dark off.
        Q_EMIT told(preferenceIn(value.variant()) == PrefersDark ? Scheme::Dark : Scheme::Light);
    }
}
