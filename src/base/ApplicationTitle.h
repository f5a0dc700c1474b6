// The title of the main window and of every box that has none of its own.
#pragma once

#include <QString>

inline QString applicationTitle()
{
    return QStringLiteral("Ambrel eCommerce Software");
}
