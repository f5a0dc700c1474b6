// How a product's shipping is charged: not at all, by its weight, or by a cost of its own for each shipping type of the
// shop. The window owns it and no button leads to it.
#pragma once

#include "editors/Panel.h"

#include <memory>
#include <vector>

class NumericBox;
class PanelHost;
class ProductClass;
class QButtonGroup;
class QFormLayout;
class QLabel;
class QLineEdit;

class ProductShippingCostsPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ProductShippingCostsPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    // One label and one box for each shipping type. The first pair is always there, hidden without types.
    struct TypeCost
    {
        QLabel* ShippingTypeNameLbl;
        QLineEdit* ShippingTypeCostTxt;
    };

    void addPair();
    // As many pairs as the shop has types, with their names and the product's costs by position.
    void fillCosts();
    void applyOption();

    PanelHost& m_host;
    QButtonGroup* m_options;
    NumericBox* WeightTxt;
    QFormLayout* m_costForm;
    std::vector<TypeCost> m_costs;
    std::shared_ptr<ProductClass> m_product;
};
