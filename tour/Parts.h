// The parts of the tour, in the order in which it walks them. Each leaves the window where it likes; each begins in a
// mode of its own.
#pragma once

class Walk;

// The modes, each toolbar, a button under the mouse, the menus and the saving.
void walkModes(Walk& walk);
// Every panel of the catalogue that a button leads to, the month calendar and the picker of pictures.
void walkCataloguePanels(Walk& walk);
// What is new and empty, and what is too long, in the catalogue.
void walkCatalogueExtremes(Walk& walk);
// Every manager of the design's pages, one of them in advanced mode.
void walkDesignManagers(Walk& walk);
// The dialogs of the design, and the one that publishes the shop.
void walkDialogs(Walk& walk);
// Every page of the shop as a visitor sees it, wide and narrow.
void walkPages(Walk& walk);
