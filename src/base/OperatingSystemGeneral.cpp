#include "base/OperatingSystem.h"

std::unique_ptr<FileCalls> systemFileCalls()
{
    return generalFileCalls();
}

std::unique_ptr<HeldFile> holdFile(const QString& /*path*/)
{
    return nullptr;
}

bool runsAsRoot()
{
    return false;
}

bool endProcess(qint64 /*process*/)
{
    return false;
}
