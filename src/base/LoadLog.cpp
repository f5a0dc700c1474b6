#include "base/LoadLog.h"

#include "base/FileBytes.h"

#include <QFile>

LoadLog::LoadLog(const ApplicationFolder& folder) : m_fileName(folder.loadLogFile()) {}

void LoadLog::reset()
{
    QFile::remove(m_fileName);
}

void LoadLog::WriteLoadLog(const QString& message)
{
    if (!m_isMute) {
        appendFileBytes(m_fileName, '"' + message.toUtf8() + "\"\r\n");
    }
}
