#include "editors/catalogue/ProductGeneralPanel.h"

#include "editors/NumericBox.h"
#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/TextArea.h"
#include "editors/catalogue/ObjectOf.h"
#include "editors/design/pickers/BrowseImageControl.h"
#include "look/WordLabel.h"
#include "model/ProductClass.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductGeneralPanel::ProductGeneralPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Product general properties"_s, this);
    IdLbl = named(new WordLabel(WordLabel::Kind::Small), "IdLbl", QString());
    ProductNameTxt = textField(frame);
    ProductDescriptionTxt = new TextArea(frame);
    ProductCodeTxt = textField(frame);
    ProductPriceTxt = new NumericBox(NumericBox::Takes::Number, frame);
    chkForSale = named(new QCheckBox(u"For sale"_s, frame), "chkForSale", u"For sale"_s);
    ProductUnitTxt = textField(frame);
    ProductLinkTxt = textField(frame);
    BrowseImageControl1 = named(new BrowseImageControl(host, frame), "BrowseImageControl1", u"Picture"_s);

    QFormLayout* form = frame->addForm(u"The product"_s, true);
    setAside(form, IdLbl);
    addField(form, u"Name"_s, ProductNameTxt, "ProductNameTxt");
    addField(form, u"Description"_s, ProductDescriptionTxt, "ProductDescriptionTxt");
    addField(form, u"Code"_s, ProductCodeTxt, "ProductCodeTxt");
    addPriceRow(form);
    addField(form, u"Unit"_s, ProductUnitTxt, "ProductUnitTxt");
    addField(form, u"Link"_s, ProductLinkTxt, "ProductLinkTxt");
    ProductCodeTxt->setMaximumWidth(FieldWidth::Short);
    ProductUnitTxt->setMaximumWidth(FieldWidth::Short);
    frame->addColumn(u"Picture"_s)->addWidget(BrowseImageControl1);
    frame->addButtons(host);

    connectGuarded(m_host.errorHandler(), ProductNameTxt, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (m_product) {
            m_host.setNodeText(nodeKey(m_product->id), text);
        }
    });
}

void ProductGeneralPanel::addPriceRow(QFormLayout* form)
{
    named(ProductPriceTxt, "ProductPriceTxt", u"Price"_s);
    ProductPriceTxt->setFixedWidth(FieldWidth::Number);
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(ProductPriceTxt);
    row->addWidget(chkForSale);
    row->addStretch(1);
    form->addRow(captionOf(u"Price"_s, ProductPriceTxt), row);
}

void ProductGeneralPanel::SetActiveObject(const CatalogueObject& object)
{
    m_product = objectOf<ProductClass>(object);
    if (!m_product) {
        return;
    }
    IdLbl->setText(u"ID = %1"_s.arg(m_product->id));
    ProductNameTxt->setText(m_product->name);
    ProductDescriptionTxt->fill(m_product->Description);
    ProductCodeTxt->setText(m_product->Code);
    ProductPriceTxt->fill(m_product->Price()->Value);
    ProductUnitTxt->setText(m_product->Unit);
    ProductLinkTxt->setText(m_product->LINK);
    BrowseImageControl1->setSelectedImage(m_product->selectedImage());
    chkForSale->setChecked(m_product->ForSale);
}

void ProductGeneralPanel::SaveActiveObject()
{
    if (!m_product) {
        return;
    }
    m_product->name = ProductNameTxt->text();
    m_product->Description = ProductDescriptionTxt->text();
    m_product->Code = ProductCodeTxt->text();
    m_product->Price()->Value = ProductPriceTxt->text();
    m_product->Unit = ProductUnitTxt->text();
    completeLink();
    m_product->LINK = ProductLinkTxt->text();
    // The text only: the image itself is the selection, which has changed already.
    m_product->Picture = BrowseImageControl1->imageFileName();
    m_product->ForSale = chkForSale->isChecked();
}

// A link that begins with "https://" or with capitals gets the prefix too, deliberately.
void ProductGeneralPanel::completeLink()
{
    const QString prefix = u"http://"_s;
    const QString link = ProductLinkTxt->text();
    if (!link.isEmpty() && !link.startsWith(prefix)) {
        ProductLinkTxt->setText(prefix + link);
    }
}

void ProductGeneralPanel::ClearActiveObject()
{
    m_product.reset();
    BrowseImageControl1->setSelectedImage(nullptr);
}
