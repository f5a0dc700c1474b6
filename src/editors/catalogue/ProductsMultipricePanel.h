// The variants of a product's price. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CustomGrid;
class ProductClass;

class ProductsMultipricePanel : public CataloguePanel<ProductClass>
{
    Q_OBJECT

public:
    ProductsMultipricePanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ProductClass& product) override;
    void write(ProductClass& product) override;

private:
    CustomGrid* MultipriceGrd;
};
