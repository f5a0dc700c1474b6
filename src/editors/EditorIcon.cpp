#include "editors/EditorIcon.h"

using namespace Qt::StringLiterals;

// A static library's resources have to be asked for, and only a function of no namespace can do so.
static void takeIcons()
{
    Q_INIT_RESOURCE(editors);
}

QIcon editorIcon(const char* name)
{
    takeIcons();
    return QIcon(u":/editors/%1.svg"_s.arg(QLatin1String(name)));
}
