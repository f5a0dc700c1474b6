#include "editors/catalogue/ShopTaxesPanel.h"

#include "editors/catalogue/CustomGrid.h"
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

ShopTaxesPanel::ShopTaxesPanel(PanelHost& host, QWidget* parent) : CataloguePanel(host, u"Taxes"_s, parent)
{
    optNoTax = newOption("optNoTax", u"No taxes"_s, m_frame);
    optSelectTax = newOption("optSelectTax", u"Charge the taxes ticked below"_s, m_frame);
    TaxGrd = named(new CustomGrid(host, m_frame), "TaxGrd", u"Taxes"_s);
    TaxGrd->setContents({CellContent::Text, CellContent::NormalisedNumber});

    QVBoxLayout* choice = m_frame->addColumn(u"Use of taxes"_s);
    choice->addWidget(optNoTax);
    choice->addWidget(optSelectTax);
    m_frame->addColumn(u"Taxes"_s, PanelFrame::Height::Rest)->addWidget(TaxGrd, 1);
    m_frame->addButtons(host);

    connect(optSelectTax, &QRadioButton::toggled, TaxGrd, &QWidget::setEnabled);
    TaxGrd->setEnabled(false);
}

void ShopTaxesPanel::fill(ShopClass& shop)
{
    TaxGrd->Init({u"Tax choices"_s, u"Tax Rates (%)"_s, u"Use"_s}, columnsOf(shop.Taxes), true);
    (shop.TaxesAreSelected ? optSelectTax : optNoTax)->setChecked(true);
}

void ShopTaxesPanel::write(ShopClass& shop)
{
    shop.TaxesAreSelected = optSelectTax->isChecked();
    TaxGrd->GetDataForTaxes();
}
