// The title of the main window and of every box that has none of its own.
#pragma once

#include <QString>

inline QString ApplicationTitle()
{
    return QStringLiteral("Ambrel eCommerce Software");
}
