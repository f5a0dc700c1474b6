// A panel without a purpose yet: deliberately, it shows nothing of the product and saves nothing.
#pragma once

#include "editors/Panel.h"

class PanelHost;

class ProductTaxesPanel : public Panel
{
    Q_OBJECT

public:
    ProductTaxesPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& /*object*/) override {}
    void SaveActiveObject() override {}
    void ClearActiveObject() override {}
};
