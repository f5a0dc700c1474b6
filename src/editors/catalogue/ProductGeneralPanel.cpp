#include "editors/catalogue/ProductGeneralPanel.h"

#include "editors/NumericBox.h"
#include "editors/TextArea.h"
#include "editors/design/pickers/BrowseImageControl.h"
#include "look/WordLabel.h"
#include "model/ProductClass.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductGeneralPanel::ProductGeneralPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Product general properties"_s, parent)
{
    IdLbl = named(new WordLabel(WordLabel::Kind::Small), "IdLbl", QString());
    ProductNameTxt = textField(m_frame);
    ProductDescriptionTxt = new TextArea(m_frame);
    ProductCodeTxt = textField(m_frame);
    ProductPriceTxt = new NumericBox(NumericBox::Takes::Number, m_frame);
    chkForSale = named(new QCheckBox(u"For sale"_s, m_frame), "chkForSale", u"For sale"_s);
    ProductUnitTxt = textField(m_frame);
    ProductLinkTxt = textField(m_frame);
    BrowseImageControl1 = named(new BrowseImageControl(host, m_frame), "BrowseImageControl1", u"Picture"_s);

    QFormLayout* form = m_frame->addForm(u"The product"_s, PanelFrame::Height::Rest);
    setAside(form, IdLbl);
    addField(form, u"Name"_s, ProductNameTxt, "ProductNameTxt");
    addField(form, u"Description"_s, ProductDescriptionTxt, "ProductDescriptionTxt");
    addField(form, u"Code"_s, ProductCodeTxt, "ProductCodeTxt");
    addPriceRow(form);
    addField(form, u"Unit"_s, ProductUnitTxt, "ProductUnitTxt");
    addField(form, u"Link"_s, ProductLinkTxt, "ProductLinkTxt");
    ProductCodeTxt->setMaximumWidth(FieldWidth::Short);
    ProductUnitTxt->setMaximumWidth(FieldWidth::Short);
    m_frame->addColumn(u"Picture"_s)->addWidget(BrowseImageControl1);
    m_frame->addButtons(host);

    setNameField(ProductNameTxt, [](const ProductClass& product) { return nodeKey(product.id); });
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

void ProductGeneralPanel::fill(ProductClass& product)
{
    IdLbl->setText(u"ID = %1"_s.arg(product.id));
    ProductNameTxt->setText(product.name);
    ProductDescriptionTxt->fill(product.Description);
    ProductCodeTxt->setText(product.Code);
    ProductPriceTxt->fill(product.Price()->Value);
    ProductUnitTxt->setText(product.Unit);
    ProductLinkTxt->setText(product.LINK);
    BrowseImageControl1->setSelectedImage(product.selectedImage());
    chkForSale->setChecked(product.ForSale);
}

void ProductGeneralPanel::write(ProductClass& product)
{
    product.name = ProductNameTxt->text();
    product.Description = ProductDescriptionTxt->text();
    product.Code = ProductCodeTxt->text();
    product.Price()->Value = ProductPriceTxt->text();
    product.Unit = ProductUnitTxt->text();
    completeLink();
    product.LINK = ProductLinkTxt->text();
    // The text only: the image itself is the selection, which has changed already.
    product.Picture = BrowseImageControl1->imageFileName();
    product.ForSale = chkForSale->isChecked();
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

void ProductGeneralPanel::forget()
{
    BrowseImageControl1->setSelectedImage(nullptr);
}
