// Name, description and picture of a category. The picture does not wait for a submit: BrowseImageControl changes the
// category's own selection. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class BrowseImageControl;
class CategoryClass;
class TextArea;

class CategoryGeneralPanel : public CataloguePanel<CategoryClass>
{
    Q_OBJECT

public:
    CategoryGeneralPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(CategoryClass& category) override;
    void write(CategoryClass& category) override;
    void forget() override;

private:
    QLabel* IdLbl;
    QLineEdit* CategoryNameTxt;
    TextArea* CategoryDescriptionTxt;
    BrowseImageControl* BrowseImageControl1;
};
