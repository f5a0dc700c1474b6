#include "base/ApplicationFolder.h"

#include "base/RuntimeError.h"

using namespace Qt::StringLiterals;

ApplicationFolder::ApplicationFolder(const QString& path) : m_path(path)
{
    while (m_path.endsWith(u'/')) {
        m_path.chop(1);
    }
}

QString ApplicationFolder::shopFile() const
{
    return m_path + "/shop.xml"_L1;
}
QString ApplicationFolder::unsavedShopFile() const
{
    return m_path + "/shop.unsaved.xml"_L1;
}
QString ApplicationFolder::oldUnsavedShopFile() const
{
    return m_path + "/shop.unsaved.old.xml"_L1;
}
QString ApplicationFolder::runningFile() const
{
    return m_path + "/Tarnwick.running"_L1;
}
QString ApplicationFolder::countriesFile() const
{
    return m_path + "/countries.txt"_L1;
}
QString ApplicationFolder::loadLogFile() const
{
    return m_path + "/load.log"_L1;
}
QString ApplicationFolder::uploadLogFile() const
{
    return m_path + "/upload.log"_L1;
}
QString ApplicationFolder::templatesFolder() const
{
    return m_path + "/templates/"_L1;
}
QString ApplicationFolder::picturesFolder() const
{
    return m_path + "/pictures/"_L1;
}
QString ApplicationFolder::backupsFolder() const
{
    return m_path + "/backups/"_L1;
}

QString ApplicationFolder::pictureFile(const QString& name) const
{
    if (name.isEmpty() || name == "."_L1 || name == ".."_L1 || name.contains(u'/') || name.contains(QChar::Null)) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"File not found: %1"_s.arg(name));
    }
    return picturesFolder() + name;
}
