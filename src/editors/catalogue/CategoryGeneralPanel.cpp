#include "editors/catalogue/CategoryGeneralPanel.h"

#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/TextArea.h"
#include "editors/catalogue/ObjectOf.h"
#include "editors/design/BrowseImageControl.h"
#include "model/CategoryClass.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

CategoryGeneralPanel::CategoryGeneralPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(tr("Category general properties"), this);
    IdLbl = named(new QLabel(frame), "IdLbl", QString());
    CategoryNameTxt = textField(frame);
    CategoryDescriptionTxt = new TextArea(frame);
    BrowseImageControl1 = named(new BrowseImageControl(host, frame), "BrowseImageControl1", tr("Picture"));

    QFormLayout* form = frame->addForm(tr("The category"), true);
    form->addRow(IdLbl);
    addField(form, tr("Name"), CategoryNameTxt, "CategoryNameTxt");
    addField(form, tr("Description"), CategoryDescriptionTxt, "CategoryDescriptionTxt");
    frame->addColumn(tr("Picture"))->addWidget(BrowseImageControl1);
    frame->addButtons(host);

    connect(CategoryNameTxt, &QLineEdit::textEdited, this,
            [this](const QString& text) { guarded(m_host.errorHandler(), [&] { m_host.setSelectedNodeText(text); }); });
}

void CategoryGeneralPanel::SetActiveObject(const CatalogueObject& object)
{
    m_category = ObjectOf<CategoryClass>(object);
    if (!m_category) {
        return;
    }
    IdLbl->setText(tr("ID = %1").arg(m_category->id));
    CategoryNameTxt->setText(m_category->name);
    CategoryDescriptionTxt->fill(m_category->Description);
    BrowseImageControl1->setSelectedImage(m_category->selectedImage());
}

void CategoryGeneralPanel::SaveActiveObject()
{
    if (!m_category) {
        return;
    }
    m_category->name = CategoryNameTxt->text();
    m_category->Description = CategoryDescriptionTxt->text();
}

void CategoryGeneralPanel::ClearActiveObject()
{
    m_category.reset();
    BrowseImageControl1->setSelectedImage(nullptr);
}
