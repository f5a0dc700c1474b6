#include "editors/catalogue/ShopTaxesPanel.h"

#include "editors/PanelFrame.h"
#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/ObjectOf.h"
#include "model/ShopClass.h"

#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// The third column shows pictures and has no texts.
CustomGrid::Columns columnsOf(const KeyedCollection<clsTax>& taxes)
{
    auto names = std::make_shared<TextCollection>();
    auto percents = std::make_shared<TextCollection>();
    for (const clsTax& tax : taxes) {
        names->Add(tax.TaxName);
        percents->Add(tax.Percent());
    }
    return {names, percents, nullptr};
}

} // namespace

ShopTaxesPanel::ShopTaxesPanel(PanelHost& host, QWidget* parent) : Panel(parent)
{
    auto* frame = new PanelFrame(u"Taxes"_s, this);
    optNoTax = named(new QRadioButton(u"No taxes"_s, frame), "optNoTax", u"No taxes"_s);
    optSelectTax = named(new QRadioButton(u"Charge the taxes ticked below"_s, frame), "optSelectTax",
                         u"Charge the taxes ticked below"_s);
    TaxGrd = named(new CustomGrid(host, frame), "TaxGrd", u"Taxes"_s);

    QVBoxLayout* choice = frame->addColumn(u"Use of taxes"_s);
    choice->addWidget(optNoTax);
    choice->addWidget(optSelectTax);
    frame->addColumn(u"Taxes"_s, true)->addWidget(TaxGrd, 1);
    frame->addButtons(host);

    connect(optSelectTax, &QRadioButton::toggled, TaxGrd, &QWidget::setEnabled);
    TaxGrd->setEnabled(false);
}

void ShopTaxesPanel::SetActiveObject(const CatalogueObject& object)
{
    m_shop = objectOf<ShopClass>(object);
    if (!m_shop) {
        return;
    }
    TaxGrd->Init({u"Tax choices"_s, u"Tax Rates (%)"_s, u"Use"_s}, columnsOf(m_shop->Taxes), true);
    (m_shop->TaxesAreSelected ? optSelectTax : optNoTax)->setChecked(true);
}

void ShopTaxesPanel::SaveActiveObject()
{
    if (!m_shop) {
        return;
    }
    m_shop->TaxesAreSelected = optSelectTax->isChecked();
    TaxGrd->GetDataForTaxes();
}

void ShopTaxesPanel::ClearActiveObject()
{
    m_shop.reset();
}
