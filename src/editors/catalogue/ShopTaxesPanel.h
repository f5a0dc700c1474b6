// Whether the shop takes taxes, and which. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CustomGrid;
class ShopClass;

class ShopTaxesPanel : public CataloguePanel<ShopClass>
{
    Q_OBJECT

public:
    ShopTaxesPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ShopClass& shop) override;
    void write(ShopClass& shop) override;

private:
    QRadioButton* optNoTax;
    QRadioButton* optSelectTax;
    CustomGrid* TaxGrd;
};
