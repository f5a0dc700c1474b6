#include "editors/catalogue/ucShippingCharges.h"

#include "editors/PanelFrame.h"
#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/ObjectOf.h"
#include "model/ShopClass.h"

#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ucShippingCharges::ucShippingCharges(PanelHost& host, QWidget* parent) : Panel(parent)
{
    auto* frame = new PanelFrame(u"Shipping charges"_s, this);
    cmbNoCharges = named(new QRadioButton(u"No shipping charges"_s, frame), "cmbNoCharges", u"No shipping charges"_s);
    cmbSelectCharges = named(new QRadioButton(u"Add the charges ticked below"_s, frame), "cmbSelectCharges",
                             u"Add the charges ticked below"_s);
    gridCharges = named(new CustomGrid(host, frame), "gridCharges", u"Shipping charges"_s);

    QVBoxLayout* choice = frame->addColumn(u"Use of shipping charges"_s);
    choice->addWidget(cmbNoCharges);
    choice->addWidget(cmbSelectCharges);
    frame->addColumn(u"Charges by destination"_s, true)->addWidget(gridCharges, 1);
    frame->addButtons(host);

    connect(cmbSelectCharges, &QRadioButton::toggled, gridCharges, &QWidget::setEnabled);
    gridCharges->setEnabled(false);
}

void ucShippingCharges::SetActiveObject(const CatalogueObject& object)
{
    m_shop = objectOf<ShopClass>(object);
    if (!m_shop) {
        return;
    }
    gridCharges->InitForCharges();
    (m_shop->ShippingChargesAreSelected ? cmbSelectCharges : cmbNoCharges)->setChecked(true);
}

void ucShippingCharges::SaveActiveObject()
{
    if (!m_shop) {
        return;
    }
    gridCharges->GetDataForCharges();
    m_shop->ShippingChargesAreSelected = cmbSelectCharges->isChecked();
}

void ucShippingCharges::ClearActiveObject()
{
    m_shop.reset();
}
