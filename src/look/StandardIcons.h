// The pictures that the toolkit's own dialogs show: those of message boxes, and of the choice of a file.
#pragma once

#include <QIcon>
#include <QStyle>

// One of look/icons. Null for a picture that is left to the toolkit.
QIcon standardIconOf(QStyle::StandardPixmap picture);
