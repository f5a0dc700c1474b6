// load.log: what the program did since it was started, one quoted line per event. The file is opened and closed for
// every line, so that a crash loses none.
#pragma once

#include "base/ApplicationFolder.h"

#include <QString>

class LoadLog
{
public:
    explicit LoadLog(const ApplicationFolder& folder);

    // Deletes the file of the last session; a failure is ignored.
    void reset();
    // Appends the message between double quotes, ended by CR LF. Errors as for appendFileBytes.
    void WriteLoadLog(const QString& message);

    // From now on nothing is written: for a reading of a shop that is only a trial.
    void mute() { m_isMute = true; }

private:
    QString m_fileName;
    bool m_isMute = false;
};
