#include "editors/design/pickers/PictureFiles.h"

#include "base/ApplicationTitle.h"
#include "base/FileBytes.h"
#include "base/RuntimeError.h"
#include "design/ImageSize.h"
#include "editors/PanelHost.h"
#include "editors/design/pickers/PicturePathSetting.h"
#include "model/ShopSession.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString patterns = u"*.bmp *.png *jpg *gif"_s;

// A picture's name with a colon is taken for an address, and what stands ahead of a backslash for folders.
QString nameInPictures(QString fileName)
{
    return fileName.replace(u':', u'-').replace(u'\\', u'-');
}

} // namespace

QString pictureFileFilter()
{
    return u"Pictures (*.bmp;*.png;*jpg;*gif) (%1)"_s.arg(patterns);
}

QString pictureStartFolder()
{
    const QString last = PicturePathSetting().folder();
    return last.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) : last;
}

QString PicturePath(PanelHost& host, const QString& name)
{
    if (name.contains(u':') || QDir::isAbsolutePath(name)) {
        return name;
    }
    try {
        return host.session().folder.pictureFile(name);
    } catch (const RuntimeError&) {
        return {};
    }
}

QString addToPictures(PanelHost& host, const QString& path)
{
    const QFileInfo source(path);
    QString name = nameInPictures(source.fileName());
    const QFileInfo target(host.session().folder.picturesFolder() + name);
    if (target.exists() && !host.session().prompts.askYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s)) {
        return {};
    }
    try {
        if (source.canonicalFilePath() != target.canonicalFilePath() || !target.exists()) {
            writeFileBytes(target.filePath(), readFileBytes(path));
        }
    } catch (const RuntimeError& error) {
        // No reason to end the program, and to lose what was typed in the open panel.
        host.session().prompts.showMessage(applicationTitle(),
                                           u"%1 could not be added to the pictures of the shop. %2"_s.arg(
                                               QDir::toNativeSeparators(path), error.description()),
                                           PromptIcon::Warning);
        return {};
    }
    return name;
}

bool hasReadableSize(PanelHost& host, const QString& name)
{
    try {
        readImageSize(host.session().folder, name);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

QStringList acceptPictures(QDropEvent& event)
{
    QStringList files;
    for (const QUrl& url : event.mimeData()->urls()) {
        const QFileInfo file(url.toLocalFile()); // of nothing for what stands elsewhere
        if (file.isFile() && QDir::match(patterns.split(u' '), file.fileName())) {
            files << file.filePath();
        }
    }
    if (files.isEmpty()) {
        event.ignore();
    } else {
        event.setDropAction(Qt::CopyAction); // the file stays where it is
        event.accept();
    }
    return files;
}

void takePictures(QDropEvent& event, QObject* receiver, std::function<void(const QStringList&)> take)
{
    if (const QStringList files = acceptPictures(event); !files.isEmpty()) {
        QMetaObject::invokeMethod(
            receiver, [files, take = std::move(take)] { take(files); }, Qt::QueuedConnection);
    }
}
