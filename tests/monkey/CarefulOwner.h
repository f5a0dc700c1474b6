// The careful owner: what he types into a field, and when he leaves a button alone because it would end the program, as
// the guide says.
#pragma once

#include "Dice.h"

#include <QString>

class MainForm;
class QWidget;

// A text of the kind that the field asks for.
QString fittingText(Dice& dice, const QWidget& field);

// Lines that import well.
QByteArray fittingImportFile(Dice& dice);

// False for what he does not press now: he deletes no page that a menu shows, removes no category with a product that
// is in the cart or related to one elsewhere, adds no category while panel and node differ, and lets no product without
// a price inherit a discount.
bool mayPress(const QWidget& widget, MainForm& window);
bool mayChoose(const QString& action, MainForm& window);

// A link that appends an empty row, which he fills at once.
bool leavesEmptyRow(const QWidget& widget);
