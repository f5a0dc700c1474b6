#include "base/OperatingSystem.h"

std::unique_ptr<FileCalls> systemFileCalls()
{
    return generalFileCalls();
}

bool runsAsRoot()
{
    return false;
}

bool endProcess(qint64 /*process*/)
{
    return false;
}
