#include "editors/design/pickers/Thumbnail.h"

#include "editors/design/pickers/PictureBox.h"

#include <QImageReader>

namespace {

constexpr qint64 mostPixels = 4'000'000; // of a file that has to be decoded at its full size

// A JPEG is decoded at an eighth of its size in a fraction of the time.
bool isScaledWhileDecoded(const QImageReader& reader)
{
    return reader.format() == "jpeg" || reader.format() == "jpg";
}

} // namespace

Thumbnail readThumbnail(const QString& path, const QSize& room, double pixelRatio)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    Thumbnail made{{}, reader.size()};
    const qint64 pixels = static_cast<qint64>(made.size.width()) * made.size.height();
    if (made.size.isEmpty() || pixels > (isScaledWhileDecoded(reader) ? PictureBox::MostPixels : mostPixels)) {
        return made;
    }
    const QSize most = (QSizeF(room) * pixelRatio).toSize();
    if (made.size.width() > most.width() || made.size.height() > most.height()) {
        reader.setScaledSize(made.size.scaled(most, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        return {};
    }
    made.picture = QPixmap::fromImage(image);
    made.picture.setDevicePixelRatio(pixelRatio);
    return made;
}
