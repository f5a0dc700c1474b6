// The discount of the whole shop. Saving pushes it down the catalogue. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class ShopClass;
class DiscountEditor;

class ShopDiscountPanel : public CataloguePanel<ShopClass>
{
    Q_OBJECT

public:
    ShopDiscountPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ShopClass& shop) override;
    void write(ShopClass& shop) override;

private:
    DiscountEditor* m_editor;
};
