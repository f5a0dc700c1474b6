#include "editors/catalogue/CategoryGeneralPanel.h"

#include "editors/TextArea.h"
#include "editors/design/pickers/BrowseImageControl.h"
#include "look/WordLabel.h"
#include "model/CategoryClass.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

CategoryGeneralPanel::CategoryGeneralPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Category general properties"_s, parent)
{
    IdLbl = named(new WordLabel(WordLabel::Kind::Small), "IdLbl", QString());
    CategoryNameTxt = textField(m_frame);
    CategoryDescriptionTxt = new TextArea(m_frame);
    BrowseImageControl1 = named(new BrowseImageControl(host, m_frame), "BrowseImageControl1", u"Picture"_s);

    QFormLayout* form = m_frame->addForm(u"The category"_s, PanelFrame::Height::Rest);
    setAside(form, IdLbl);
    addField(form, u"Name"_s, CategoryNameTxt, "CategoryNameTxt");
    addField(form, u"Description"_s, CategoryDescriptionTxt, "CategoryDescriptionTxt");
    m_frame->addColumn(u"Picture"_s)->addWidget(BrowseImageControl1);
    m_frame->addButtons(host);

    setNameField(CategoryNameTxt, [](const CategoryClass& category) { return nodeKey(category.id); });
}

void CategoryGeneralPanel::fill(CategoryClass& category)
{
    IdLbl->setText(u"ID = %1"_s.arg(category.id));
    CategoryNameTxt->setText(category.name);
    CategoryDescriptionTxt->fill(category.Description);
    BrowseImageControl1->setSelectedImage(category.selectedImage());
}

void CategoryGeneralPanel::write(CategoryClass& category)
{
    category.name = CategoryNameTxt->text();
    category.Description = CategoryDescriptionTxt->text();
}

void CategoryGeneralPanel::forget()
{
    BrowseImageControl1->setSelectedImage(nullptr);
}
