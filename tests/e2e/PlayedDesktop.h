// Takes the desktop's place for addresses that other programs open, and remembers them.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

class PlayedDesktop : public QObject
{
    Q_OBJECT

public:
    PlayedDesktop()
    {
        for (const QString& scheme : m_schemes) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
    }
    ~PlayedDesktop() override
    {
        for (const QString& scheme : m_schemes) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened << url.toString(); }

private:
    const QStringList m_schemes = QStringLiteral("mailto tel steam ftp ssh ws file").split(u' ');
};
