#include "editors/catalogue/CategoryGeneralPanel.h"

#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/TextArea.h"
#include "editors/catalogue/ObjectOf.h"
#include "editors/design/pickers/BrowseImageControl.h"
#include "look/WordLabel.h"
#include "model/CategoryClass.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

CategoryGeneralPanel::CategoryGeneralPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Category general properties"_s, this);
    IdLbl = named(new WordLabel(WordLabel::Kind::Small), "IdLbl", QString());
    CategoryNameTxt = textField(frame);
    CategoryDescriptionTxt = new TextArea(frame);
    BrowseImageControl1 = named(new BrowseImageControl(host, frame), "BrowseImageControl1", u"Picture"_s);

    QFormLayout* form = frame->addForm(u"The category"_s, true);
    setAside(form, IdLbl);
    addField(form, u"Name"_s, CategoryNameTxt, "CategoryNameTxt");
    addField(form, u"Description"_s, CategoryDescriptionTxt, "CategoryDescriptionTxt");
    frame->addColumn(u"Picture"_s)->addWidget(BrowseImageControl1);
    frame->addButtons(host);

    connectGuarded(m_host.errorHandler(), CategoryNameTxt, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (m_category) {
            m_host.setNodeText(nodeKey(m_category->id), text);
        }
    });
}

void CategoryGeneralPanel::SetActiveObject(const CatalogueObject& object)
{
    m_category = objectOf<CategoryClass>(object);
    if (!m_category) {
        return;
    }
    IdLbl->setText(u"ID = %1"_s.arg(m_category->id));
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
