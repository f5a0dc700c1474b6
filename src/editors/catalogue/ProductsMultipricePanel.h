// The variants of a product's price. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CustomGrid;
class PanelHost;
class ProductClass;

class ProductsMultipricePanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ProductsMultipricePanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    PanelHost& m_host;
    CustomGrid* MultipriceGrd;
    std::shared_ptr<ProductClass> m_product;
};
