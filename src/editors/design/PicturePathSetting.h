// The folder that a picture was last added from. It is kept per user, from session to session; the shop does not have
// it.
#pragma once

#include <QString>

class PicturePathSetting
{
public:
    // Empty when no picture was added yet.
    QString folder() const;
    void setFolder(const QString& folder);
};
