// What the texts of a grid's column should be. A cell that holds something else is marked, and taken all the same.
#pragma once

#include <QString>

enum class CellContent {
    Text,
    Number,           // in the user's decimal form, or empty
    NormalisedNumber, // with a point or a comma, or empty
    Limit,            // a NormalisedNumber that is not empty
};

// Why the text is not such a content, as a sentence for the user; empty when it is.
QString reasonAgainst(CellContent content, const QString& text);
