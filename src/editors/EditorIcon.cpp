#include "editors/EditorIcon.h"

using namespace Qt::StringLiterals;

// A static library's resources must be registered by hand, in a function outside all namespaces.
static void takeIcons()
{
    Q_INIT_RESOURCE(editors);
}

QIcon editorIcon(const char* name)
{
    takeIcons();
    return QIcon(u":/editors/%1.svg"_s.arg(QLatin1String(name)));
}
