// What the monkey types: numbers and dates that are none or too large, words that mean something to the program, marks
// of its formats, letters that few expect.
#pragma once

#include "Dice.h"

#include <QString>

QString oddText(Dice& dice);

// An address of the preview, with odd parameters.
QString oddAddress(Dice& dice);

// Some lines of an import file, good and bad ones.
QByteArray oddImportFile(Dice& dice);
