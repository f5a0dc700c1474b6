// Name, price and picture of a product, and what else there is of it in general. The picture does not wait for a
// submit: BrowseImageControl changes the product's own selection. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class BrowseImageControl;
class NumericBox;
class ProductClass;
class QCheckBox;
class TextArea;

class ProductGeneralPanel : public CataloguePanel<ProductClass>
{
    Q_OBJECT

public:
    ProductGeneralPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ProductClass& product) override;
    void write(ProductClass& product) override;
    void forget() override;

private:
    void addPriceRow(QFormLayout* form);
    void completeLink();

    QLabel* IdLbl;
    QLineEdit* ProductNameTxt;
    TextArea* ProductDescriptionTxt;
    QLineEdit* ProductCodeTxt;
    NumericBox* ProductPriceTxt;
    QLineEdit* ProductUnitTxt;
    QLineEdit* ProductLinkTxt;
    QCheckBox* chkForSale;
    BrowseImageControl* BrowseImageControl1;
};
