#include "editors/catalogue/ucShippingCharges.h"

#include "editors/catalogue/CustomGrid.h"
#include "model/ShopClass.h"

#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ucShippingCharges::ucShippingCharges(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Shipping charges"_s, parent)
{
    cmbNoCharges = newOption("cmbNoCharges", u"No shipping charges"_s, m_frame);
    cmbSelectCharges = newOption("cmbSelectCharges", u"Add the charges ticked below"_s, m_frame);
    gridCharges = named(new CustomGrid(host, m_frame), "gridCharges", u"Shipping charges"_s);
    gridCharges->setContents({CellContent::Text, CellContent::Number});

    QVBoxLayout* choice = m_frame->addColumn(u"Use of shipping charges"_s);
    choice->addWidget(cmbNoCharges);
    choice->addWidget(cmbSelectCharges);
    m_frame->addColumn(u"Charges by destination"_s, PanelFrame::Height::Rest)->addWidget(gridCharges, 1);
    m_frame->addButtons(host);

    connect(cmbSelectCharges, &QRadioButton::toggled, gridCharges, &QWidget::setEnabled);
    gridCharges->setEnabled(false);
}

void ucShippingCharges::fill(ShopClass& shop)
{
    gridCharges->InitForCharges();
    (shop.ShippingChargesAreSelected ? cmbSelectCharges : cmbNoCharges)->setChecked(true);
}

void ucShippingCharges::write(ShopClass& shop)
{
    gridCharges->GetDataForCharges();
    shop.ShippingChargesAreSelected = cmbSelectCharges->isChecked();
}
