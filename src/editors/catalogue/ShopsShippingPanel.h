// The shop's shipping types. The window owns it and no button leads to it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CustomGrid;
class PanelHost;
class ShopClass;

class ShopsShippingPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ShopsShippingPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    CustomGrid* ShippingGrd;
    std::shared_ptr<ShopClass> m_shop;
};
