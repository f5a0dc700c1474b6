// The discount of one product. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class ProductClass;
class DiscountEditor;

class ProductDiscountPanel : public CataloguePanel<ProductClass>
{
    Q_OBJECT

public:
    ProductDiscountPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ProductClass& product) override;
    void write(ProductClass& product) override;

private:
    DiscountEditor* m_editor;
};
