// Whether the shop takes taxes, and which. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CustomGrid;
class PanelHost;
class QRadioButton;
class ShopClass;

class ShopTaxesPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ShopTaxesPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    QRadioButton* optNoTax;
    QRadioButton* optSelectTax;
    CustomGrid* TaxGrd;
    std::shared_ptr<ShopClass> m_shop;
};
