// Name, description and picture of a category. The picture does not wait for a submit: BrowseImageControl changes the
// category's own selection. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class BrowseImageControl;
class CategoryClass;
class PanelHost;
class QLabel;
class QLineEdit;
class TextArea;

class CategoryGeneralPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    CategoryGeneralPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    PanelHost& m_host;
    QLabel* IdLbl;
    QLineEdit* CategoryNameTxt;
    TextArea* CategoryDescriptionTxt;
    BrowseImageControl* BrowseImageControl1;
    std::shared_ptr<CategoryClass> m_category;
};
