// The manager of the footer: beside its options it holds the style of the copyright line, which is edited on the panel
// itself and written with it.
#pragma once

#include "editors/design/PageManager.h"

class FontAndColorEditorPanel;

class FooterManager : public PageManager
{
    Q_OBJECT

public:
    FooterManager(PanelHost& host, QWidget* parent);

protected:
    void loadMore(ShopClass& shop) override;
    void saveMore(ShopClass& shop) override;

private:
    FontAndColorEditorPanel* CopyrightPropPnl;
};
