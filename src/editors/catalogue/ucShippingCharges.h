// Whether the shop takes flat charges for shipping, and which. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CustomGrid;
class PanelHost;
class QRadioButton;
class ShopClass;

class ucShippingCharges : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ucShippingCharges(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    QRadioButton* cmbNoCharges;
    QRadioButton* cmbSelectCharges;
    CustomGrid* gridCharges;
    std::shared_ptr<ShopClass> m_shop;
};
