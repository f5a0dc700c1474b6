// Width and height of a picture in pixels, read from the file's header without decoding the picture.
#pragma once

#include "base/ApplicationFolder.h"

#include <QString>
#include <QtGlobal>

struct ImageSize
{
    qint16 width = 0;
    qint16 height = 0;
};

// The size as the 16-bit numbers that the shop file has. ErrorNumber::Overflow when one is larger than 32767.
ImageSize narrowedImageSize(int width, int height);

// The size of the picture of that name under pictures/. ErrorNumber::FileNotFound when there is no such file there,
// InvalidArgument when it is no picture, Overflow when it is larger than 32767 pixels.
ImageSize readImageSize(const ApplicationFolder& folder, const QString& fileName);
