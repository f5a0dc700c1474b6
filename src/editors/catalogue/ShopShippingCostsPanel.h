// What the shop's shipping types cost by weight: a row for each frame of weights, a column for each type. The model
// keeps one list of costs per frame, the grid one per column; this turns them into each other.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CustomGrid;
class ShopClass;

class ShopShippingCostsPanel : public CataloguePanel<ShopClass>
{
    Q_OBJECT

public:
    ShopShippingCostsPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ShopClass& shop) override;
    void write(ShopClass& shop) override;

private:
    CustomGrid* ShippingGrd;
};
