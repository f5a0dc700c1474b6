// The shop's name, currency, description and the countries that it delivers to. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class QListWidget;
class ShopClass;
class TextArea;

class ShopGeneralPanel : public CataloguePanel<ShopClass>
{
    Q_OBJECT

public:
    ShopGeneralPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ShopClass& shop) override;
    void write(ShopClass& shop) override;

private:
    void checkAll(Qt::CheckState state);

    QLabel* IdLbl;
    QLineEdit* ShopNameTxt;
    QLineEdit* txtCurrency;
    TextArea* ShopDescriptionTxt;
    QListWidget* lstCountries;
};
