// Name, price and picture of a product, and what else there is of it in general. The picture does not wait for a
// submit: BrowseImageControl changes the product's own selection. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class BrowseImageControl;
class NumericBox;
class PanelHost;
class ProductClass;
class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class TextArea;

class ProductGeneralPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ProductGeneralPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    void addPriceRow(QFormLayout* form);
    void completeLink();

    PanelHost& m_host;
    QLabel* IdLbl;
    QLineEdit* ProductNameTxt;
    TextArea* ProductDescriptionTxt;
    QLineEdit* ProductCodeTxt;
    NumericBox* ProductPriceTxt;
    QLineEdit* ProductUnitTxt;
    QLineEdit* ProductLinkTxt;
    QCheckBox* chkForSale;
    BrowseImageControl* BrowseImageControl1;
    std::shared_ptr<ProductClass> m_product;
};
