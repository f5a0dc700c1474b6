#include "editors/catalogue/ucShippingCharges.h"

#include "editors/PanelFrame.h"
#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/ObjectOf.h"
#include "model/ShopClass.h"

#include <QRadioButton>
#include <QVBoxLayout>

ucShippingCharges::ucShippingCharges(PanelHost& host, QWidget* parent) : Panel(parent)
{
    auto* frame = new PanelFrame(tr("Shipping charges"), this);
    cmbNoCharges = named(new QRadioButton(tr("No shipping charges"), frame), "cmbNoCharges", tr("No shipping charges"));
    cmbSelectCharges = named(new QRadioButton(tr("Charges of the list below"), frame), "cmbSelectCharges",
                             tr("Charges of the list below"));
    gridCharges = named(new CustomGrid(host, frame), "gridCharges", tr("Shipping charges"));

    QVBoxLayout* choice = frame->addColumn(tr("Use of shipping charges"));
    choice->addWidget(cmbNoCharges);
    choice->addWidget(cmbSelectCharges);
    frame->addColumn(tr("Charges by destination"), true)->addWidget(gridCharges, 1);
    frame->addButtons(host);

    connect(cmbSelectCharges, &QRadioButton::toggled, gridCharges, &CustomGrid::setEnabled);
    gridCharges->setEnabled(false);
}

void ucShippingCharges::SetActiveObject(const CatalogueObject& object)
{
    m_shop = ObjectOf<ShopClass>(object);
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
