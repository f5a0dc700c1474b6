#include "base/ProgramVersion.h"

using namespace Qt::StringLiterals;

QString programVersion()
{
    return u"%1.%2.%3"_s.arg(TARNWICK_VERSION_MAJOR).arg(TARNWICK_VERSION_MINOR).arg(TARNWICK_VERSION_REVISION);
}
