// Which pictures a toolbar button shows under the mouse. A title that is not in the table keeps its picture at rest.
#pragma once

#include <QString>

#include <optional>
#include <span>

struct ButtonPictureRow
{
    const char* title;   // compared without regard to case
    const char* outside; // near the edge, and when the mouse has left
    const char* inside;
    bool inPicturesFolder; // files of the shop's pictures/; else numbers of the program's own pictures
};

std::span<const ButtonPictureRow> buttonPictureTable();

// The row of a title; nothing when the table has none.
const ButtonPictureRow* buttonPicturesOf(const QString& title);
