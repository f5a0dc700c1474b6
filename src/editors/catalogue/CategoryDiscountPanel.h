// The discount of a category. Saving pushes it down to all below. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CategoryClass;
class DiscountEditor;
class PanelHost;

class CategoryDiscountPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    CategoryDiscountPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    PanelHost& m_host;
    DiscountEditor* m_editor;
    std::shared_ptr<CategoryClass> m_category;
};
