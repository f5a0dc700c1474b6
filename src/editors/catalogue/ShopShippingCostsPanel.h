// What the shop's shipping types cost by weight: a row for each frame of weights, a column for each type. The model
// keeps one list of costs a frame, the grid one a column; this turns them into each other.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CustomGrid;
class PanelHost;
class ShopClass;

class ShopShippingCostsPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ShopShippingCostsPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    CustomGrid* ShippingGrd;
    std::shared_ptr<ShopClass> m_shop;
};
