// The words of a switch of the design. isYes of DesignOptions.h reads them.
#pragma once

#include <QString>

inline QString switchWord(bool isOn)
{
    return isOn ? QStringLiteral("Yes") : QStringLiteral("No");
}
