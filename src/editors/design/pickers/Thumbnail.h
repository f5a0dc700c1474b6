// A picture file made small enough for a cell of the pickers. What would take long to decode is not decoded: it has its
// size alone.
#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

struct Thumbnail
{
    QPixmap picture; // null for a file that cannot be read or that is too large
    QSize size;      // of the file, in pixels; empty when it cannot be read
};

// Reads the file and fits its picture into the room, in logical pixels of a screen with that ratio. A smaller picture
// is not blown up.
Thumbnail readThumbnail(const QString& path, const QSize& room, double pixelRatio);
