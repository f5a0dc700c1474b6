#include "editors/catalogue/ProductTaxesPanel.h"

#include "editors/PanelFrame.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

ProductTaxesPanel::ProductTaxesPanel(PanelHost& /*host*/, QWidget* parent) : Panel(parent)
{
    auto* frame = new PanelFrame(tr("Product taxes"), this);
    QVBoxLayout* column = frame->addColumn(tr("Taxes"));
    column->addWidget(new QLabel(tr("Taxes of this product"), frame));
    column->addWidget(named(new QCheckBox(tr("Tax"), frame), "TaxCh", tr("Tax")));
}
