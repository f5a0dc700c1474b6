#include "editors/catalogue/ProductTaxesPanel.h"

#include "editors/PanelFrame.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductTaxesPanel::ProductTaxesPanel(PanelHost& /*host*/, QWidget* parent) : Panel(parent)
{
    auto* frame = new PanelFrame(u"Product taxes"_s, this);
    QVBoxLayout* column = frame->addColumn(u"Taxes"_s);
    column->addWidget(new QLabel(u"Taxes of this product"_s, frame));
    column->addWidget(named(new QCheckBox(u"Tax"_s, frame), "TaxCh", u"Tax"_s));
}
