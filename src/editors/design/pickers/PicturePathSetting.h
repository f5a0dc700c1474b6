// The folder that a picture was last chosen from. It is kept per user, from session to session; the shop does not have
// it.
#pragma once

#include <QString>

class PicturePathSetting
{
public:
    // Empty when no picture was chosen yet, and after a choice that was taken back.
    QString folder() const;
    void setFolder(const QString& folder);
};
