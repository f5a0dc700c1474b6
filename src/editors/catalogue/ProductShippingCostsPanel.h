// How a product's shipping is charged: not at all, by its weight, or by a cost of its own for each shipping type of the
// shop. The window owns it and no button leads to it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

#include <vector>

class NumericBox;
class ProductClass;
class QButtonGroup;

class ProductShippingCostsPanel : public CataloguePanel<ProductClass>
{
    Q_OBJECT

public:
    ProductShippingCostsPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ProductClass& product) override;
    void write(ProductClass& product) override;

private:
    // One label and one box for each shipping type. The first pair is always there, hidden without types.
    struct TypeCost
    {
        QLabel* ShippingTypeNameLbl;
        QLineEdit* ShippingTypeCostTxt;
    };

    void addPair();
    // As many pairs as the shop has types, with their names and the product's costs by position.
    void fillCosts(ProductClass& product);
    void applyOption();

    QButtonGroup* m_options;
    NumericBox* WeightTxt;
    QFormLayout* m_costForm;
    std::vector<TypeCost> m_costs;
};
