// Follows the desktop between light and dark while the program runs, by the setting "color-scheme" of the desktop
// portal, which KDE and GNOME keep. Where no portal answers, the program keeps the look that it started with. Theme.h
// makes the program's one.
#pragma once

#include "look/Tones.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include <optional>

class QDBusPendingCallWatcher;

class DesktopScheme : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Asks the portal on that bus, and listens to it from now on. Waits for no answer.
    void follow(QDBusConnection bus);

Q_SIGNALS:
    // The desktop is light or dark, as far as it says: once after follow(), and at every change.
    void told(Scheme scheme);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void takeAnswer(const QDBusPendingCallWatcher& call);
};
