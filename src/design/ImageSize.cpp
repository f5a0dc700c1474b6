#include "design/ImageSize.h"

#include "base/RuntimeError.h"

#include <QFile>
#include <QImageReader>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

qint16 narrowed(int pixels)
{
    if (pixels > std::numeric_limits<qint16>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<qint16>(pixels);
}

} // namespace

ImageSize narrowedImageSize(int width, int height)
{
    return {narrowed(width), narrowed(height)};
}

ImageSize readImageSize(const ApplicationFolder& folder, const QString& fileName)
{
    const QString path = folder.pictureFile(fileName);
    if (!QFile::exists(path)) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"File not found: %1"_s.arg(path));
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // what a file is tells its content, whatever its name ends in
    const QSize size = reader.size();
    if (!size.isValid()) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid picture: %1"_s.arg(path));
    }
    return narrowedImageSize(size.width(), size.height());
}
