#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

#include <utility>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

constexpr DesignOption checkoutOptions[] = {
    BuyingForm_PageHeaderText,
    BuyingForm_IncludeBreadCrumb,
    BuyingForm_IncludePageHeader,
};

VariableRows taxRows(const PageContext& context)
{
    VariableRows rows;
    for (const clsTax& tax : context.shop().Taxes) {
        if (!tax.IsChecked) {
            continue;
        }
        Variables row = context.newVariables();
        row.Add(u"tax_name", tax.TaxName);
        row.Add(u"tax_percent", tax.Percent());
        rows.push_back(std::move(row));
    }
    return rows;
}

VariableRows chargeRows(const PageContext& context)
{
    VariableRows rows;
    for (const clsCharge& charge : context.shop().Charges) {
        if (!charge.IsChecked) {
            continue;
        }
        Variables row = context.newVariables();
        row.Add(u"destination", charge.Destination);
        row.Add(u"cost", charge.Cost);
        row.Add(u"shop_currency", context.shop().shop_currency);
        rows.push_back(std::move(row));
    }
    return rows;
}

VariableRows countryRows(const PageContext& context)
{
    VariableRows rows;
    if (context.shop().SelectedCountries == nullptr) {
        return rows;
    }
    for (const QString& country : *context.shop().SelectedCountries) {
        Variables row = context.newVariables();
        row.Add(u"country", country);
        rows.push_back(std::move(row));
    }
    return rows;
}

// The lists of this page are missing when they would have no rows.
void addRows(Variables& vars, QStringView key, VariableRows rows)
{
    if (!rows.empty()) {
        vars.Add(key, std::move(rows));
    }
}

} // namespace

void addCheckoutPage(Variables& vars, const PageContext& context, const PageObject&)
{
    const ShopClass& shop = context.shop();
    addSlotVariables(vars, context, ImageSlot::BuyingFormMakeOrderButton);
    addOptions(vars, context.design(), checkoutOptions);
    // Only the hosted shop knows of errors in the form.
    vars.Add(u"error", u"No"_s);
    vars.Add(u"shop_name", shop.name);
    vars.Add(u"price", context.cart().TotalCost());
    addSlotVariables(vars, context, ImageSlot::CartRecalculateButton);
    addRows(vars, u"taxes", taxRows(context));
    vars.Add(u"ShippingChargesAreSelected", shop.ShippingChargesAreSelected);
    vars.Add(u"TaxesAreSelected", shop.TaxesAreSelected);
    addRows(vars, u"charges", chargeRows(context));
    addRows(vars, u"SelectedCountries", countryRows(context));
}
