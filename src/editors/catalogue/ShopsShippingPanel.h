// The shop's shipping types. The window owns it and no button leads to it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CustomGrid;
class ShopClass;

class ShopsShippingPanel : public CataloguePanel<ShopClass>
{
    Q_OBJECT

public:
    ShopsShippingPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ShopClass& shop) override;
    void write(ShopClass& shop) override;

private:
    CustomGrid* ShippingGrd;
};
