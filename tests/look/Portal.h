// A desktop portal that answers as KDE's and GNOME's do, on a bus of the test's own.
#pragma once

#include "support/TestSupport.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

#include <gtest/gtest.h>

class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    // What it is asked for.
    static QString appearance() { return QStringLiteral("org.freedesktop.appearance"); }
    static QString colorScheme() { return QStringLiteral("color-scheme"); }

    explicit Portal(const QDBusConnection& bus) : m_bus(bus)
    {
        EXPECT_TRUE(m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        EXPECT_TRUE(m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    uint preference = 0;
    bool wrapsTwice = true;
    bool isSilent = false;
    int questions = 0;

    void change(const QString& group, const QString& key, uint value)
    {
        Q_EMIT SettingChanged(group, key, QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key)
    {
        ++questions;
        EXPECT_EQ(group, appearance());
        EXPECT_EQ(key, colorScheme());
        if (isSilent) {
            setDelayedReply(true);
        }
        return wrapsTwice ? QDBusVariant(QVariant::fromValue(QDBusVariant(preference))) : QDBusVariant(preference);
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection m_bus;
};
