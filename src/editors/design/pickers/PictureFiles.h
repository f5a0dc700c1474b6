// The files of pictures: which ones the shop takes, where they stand, and how one from elsewhere comes into the
// pictures folder. All that chooses pictures uses these, whether the owner picks a file in a dialog or drops it.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class PanelHost;
class QDropEvent;
class QObject;

// The filter of every choice of a picture file. The dots before jpg and gif are left out deliberately.
QString pictureFileFilter();
// Where such a choice starts: in the folder of the last one, else among the owner's own pictures.
QString pictureStartFolder();

// The path of a picture's file. A name with a colon is an absolute path, any other stands under pictures/; empty for a
// name that would lead out of that folder.
QString PicturePath(PanelHost& host, const QString& name);

// Copies a file into the pictures folder and gives its name there; asks ahead of overwriting another. Empty when the
// answer is No, and when the file cannot be copied, which a box tells.
QString addToPictures(PanelHost& host, const QString& path);

// Whether the size of the picture of that name under pictures/ can be read. A shop that has the name of one without a
// size cannot be saved, so that no such picture is to be chosen.
bool hasReadableSize(PanelHost& host, const QString& name);

// For what takes files that are dropped: accepts the event of a drag or a drop as a copy when files that the filter
// lets through are among what it brings, and gives their paths; ignores it when none is.
QStringList acceptPictures(QDropEvent& event);

// The same for a drop. What is to be done with the files is done when the drop is over, unless the receiver is gone by
// then: it may ask something, for which the program that they come from must not wait.
void takePictures(QDropEvent& event, QObject* receiver, std::function<void(const QStringList&)> take);
