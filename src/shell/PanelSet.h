// Makes the window's panels and binds the buttons to them. The window holds the panels afterwards; this knows only
// which class stands behind which name.
#pragma once

#include <QHash>
#include <QString>

class Panel;
class PanelHost;
struct MainFormLayout;

// All panels by name, hidden, each in the frame that the table of panels says. The host must outlive them.
QHash<QString, Panel*> makePanels(PanelHost& host, const MainFormLayout& parts);

// Gives every button the panel and the code of its row.
void bindButtons(const MainFormLayout& parts, const QHash<QString, Panel*>& panels);
