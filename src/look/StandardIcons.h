// The pictures that the toolkit's own dialogs show: those of message boxes, and of the choice of a file.
#pragma once

#include <QIcon>
#include <QStyle>

// One of look/icons. None for a picture that the program draws in no other way than the toolkit.
QIcon standardIconOf(QStyle::StandardPixmap picture);
