// Whether the shop takes flat charges for shipping, and which. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CustomGrid;
class ShopClass;

class ucShippingCharges : public CataloguePanel<ShopClass>
{
    Q_OBJECT

public:
    ucShippingCharges(PanelHost& host, QWidget* parent);

protected:
    void fill(ShopClass& shop) override;
    void write(ShopClass& shop) override;

private:
    QRadioButton* cmbNoCharges;
    QRadioButton* cmbSelectCharges;
    CustomGrid* gridCharges;
};
