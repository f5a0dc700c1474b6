// The shop's name, currency, description and the countries that it delivers to. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class QListWidget;
class WordLabel;
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
    void forget() override;

private:
    void addCountries();
    void checkAll(Qt::CheckState state);
    // Hides the lines without the text of the filter.
    void applyFilter();
    void tellCount();

    QLabel* IdLbl;
    QLineEdit* ShopNameTxt;
    QLineEdit* txtCurrency;
    TextArea* ShopDescriptionTxt;
    QListWidget* lstCountries;
    QLineEdit* m_filter;
    WordLabel* m_count; // how many countries are checked
};
