// The careful owner: what he types into a field, and what he leaves alone because it ends the program or parts panel
// and node, as the guide says.
#pragma once

#include "Dice.h"

#include <QString>

class MainForm;
class QWidget;

// A text of the kind that the field asks for.
QString fittingText(Dice& dice, const QWidget& field);

// Lines that import well.
QByteArray fittingImportFile(Dice& dice);

// False for what he does not press.
bool mayPress(const QWidget& widget, const MainForm& window);
bool mayChoose(const QString& action, const MainForm& window);
