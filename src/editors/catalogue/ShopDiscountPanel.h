// The discount of the whole shop. Saving pushes it down the catalogue. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class DiscountEditor;
class PanelHost;
class ShopClass;

class ShopDiscountPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ShopDiscountPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    PanelHost& m_host;
    DiscountEditor* m_editor;
    std::shared_ptr<ShopClass> m_shop;
};
