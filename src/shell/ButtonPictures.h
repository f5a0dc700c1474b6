// Which pictures a toolbar button shows under the mouse. A title that is not in the table keeps its picture at rest.
#pragma once

#include <QString>

#include <span>

// Where the files of a row's pictures lie.
enum class PictureSource { Program, PicturesFolder };

struct ButtonPictureRow
{
    const char* title;   // compared without regard to case
    const char* outside; // near the edge, and once the mouse has left
    const char* inside;
    PictureSource source = PictureSource::Program;
};

std::span<const ButtonPictureRow> buttonPictureTable();

// The row of a title; nullptr when the table has none.
const ButtonPictureRow* buttonPicturesOf(const QString& title);
