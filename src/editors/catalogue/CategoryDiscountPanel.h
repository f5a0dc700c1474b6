// The discount of a category. Saving pushes it down to all below. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CategoryClass;
class DiscountEditor;

class CategoryDiscountPanel : public CataloguePanel<CategoryClass>
{
    Q_OBJECT

public:
    CategoryDiscountPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(CategoryClass& category) override;
    void write(CategoryClass& category) override;

private:
    DiscountEditor* m_editor;
};
