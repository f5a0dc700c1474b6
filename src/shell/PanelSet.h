// Makes the window's panels, which the window then owns, and binds the buttons to them. Only this file knows the class
// of each panel.
#pragma once

#include "shell/ButtonTable.h"

#include <QHash>

class Panel;
class PanelHost;
struct MainFormLayout;

// All panels by name, hidden, each in its frame. The host must outlive them.
QHash<PanelName, Panel*> makePanels(PanelHost& host, const MainFormLayout& parts);

// Gives every button the panel and the code of its row.
void bindButtons(const MainFormLayout& parts, const QHash<PanelName, Panel*>& panels);
