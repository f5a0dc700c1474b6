// The part of the tour that opens every panel of the catalogue, the month calendar and the picker of pictures.
#pragma once

#include <QString>

#include <functional>

class MainForm;

// Goes through the panels of the shop, its first category and that category's first product, and calls keep with a name
// for each picture. The window must be the active one and stand in the catalogue.
void walkCataloguePanels(MainForm& window, const std::function<void(const QString& name)>& keep);
