// The discount of one product. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class DiscountEditor;
class PanelHost;
class ProductClass;

class ProductDiscountPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ProductDiscountPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    PanelHost& m_host;
    DiscountEditor* m_editor;
    std::shared_ptr<ProductClass> m_product;
};
