#include "editors/design/pickers/PicturePathSetting.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

const QString application = u"Tarnwick"_s;
const QString key = u"Defaults/PicturePath"_s;

} // namespace

QString PicturePathSetting::folder() const
{
    return QSettings(application, application).value(key).toString();
}

void PicturePathSetting::setFolder(const QString& folder)
{
    QSettings(application, application).setValue(key, folder);
}
