#include "base/Numbers.h"
#include "pages/PageFillers.h"
#include "pages/ProductRows.h"
#include "pages/TemplateUtils.h"

#include <utility>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

constexpr DesignOption pageOptions[] = {CartPage_IncludePageHeader, CartPage_PageHeader};

constexpr DesignOption lineOptions[] = {
    CartPage_IncludeAddToCart, CartPage_IncludeDescription, CartPage_IncludeImage,      CartPage_IncludeName,
    CartPage_IncludeNewPrice,  CartPage_IncludeOldPrice,    CartPage_IncludePageHeader, CartPage_IncludePrice,
    CartPage_IncludeRelated,   CartPage_IncludeShipping,    CartPage_IncludeTaxes,
};

// The sum of the page: a single, rounded after each line. Unlike the cart's own total it holds no tax and no charge.
class Total
{
public:
    void addLine(const QString& price, const QString& quantity)
    {
        m_sum = singleFrom(static_cast<double>(m_sum) + numberOrZero(price) * numberOrZero(quantity));
    }

    float sum() const { return m_sum; }

private:
    float m_sum = 0;
};

// Adds "price" and "new_price" of a line, and its cost to the total. The discount is asked for with the text that is
// discounted already, deliberately unlike the category page.
void addPrices(Variables& row, const clsCartProduct& line, Total& total)
{
    const std::shared_ptr<clsPrice>& price = line.ParentProduct()->Price();
    if (!hasVariants(*price)) {
        const QString discounted = price->NewPrice(price->Value);
        total.addLine(discounted, line.Quantity);
        row.Add(u"price", priceVariable(price));
        row.Add(u"new_price", ifDiscounted(*price, discounted, discounted));
        return;
    }
    const QString selected = line.SelectedPrice();
    QString value;
    QString description;
    price->FindMultiPrice(selected, value, description);
    total.addLine(selected, line.Quantity);
    row.Add(u"price", value);
    row.Add(u"new_price", ifDiscounted(*price, selected, selected));
}

// A tax's name is asked for by the word "TaxNames", which no tax knows: a product with a tax deliberately fails the
// page.
void failForATax(ProductClass& product)
{
    if (product.Taxes()->isEmpty()) {
        return;
    }
    if (product.shop == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    for (int i = 1; i <= product.shop->Taxes.Count(); ++i) {
        if (product.Taxes()->Item(i) == "Y"_L1) {
            throw RuntimeError(ErrorNumber::NoSuchMember);
        }
    }
}

// Adds "taxes" and "hastaxes". The list has a row in any case: one without variables when there is no tax.
void addTaxes(Variables& row, const PageContext& context, ProductClass& product)
{
    failForATax(product);
    VariableRows rows;
    rows.push_back(context.newVariables());
    row.Add(u"taxes", std::move(rows));
    row.Add(u"hastaxes", QString());
}

VariableRows lineRows(const PageContext& context, Total& total)
{
    const ShopDesignClass& design = context.design();
    const ImageKeys imageKeys(u"CARTPAGE_IMAGE");
    SlotForRows recalculateButton(context, ImageSlot::CartRecalculateButton);
    DescriptionCutter descriptions(design, CartPage_Limit_Desc);
    VariableRows rows;
    for (const auto& line : context.cart()) {
        ProductClass& product = *line->ParentProduct();
        Variables row = context.newVariables();
        row.Add(u"id", line->id);
        row.Add(u"name", line->ProductName());
        row.Add(u"PriceDescription", line->PriceName());
        row.Add(u"quantity", line->Quantity);
        row.Add(u"shop_currency", context.shop().shop_currency);
        row.Add(u"cut_count", design.Option(CartPage_Limit_Desc));
        AddImageVariables(row, context, *product.selectedImage(), imageKeys);
        addPrices(row, *line, total);
        row.Add(u"description", descriptions.cut(product.Description));
        recalculateButton.addTo(row);
        addOptions(row, design, lineOptions);
        row.Add(u"server", serverAddress());
        addRelated(row, context, product);
        addTaxes(row, context, product);
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

void addCartPage(Variables& vars, const PageContext& context, const PageObject&)
{
    addOptions(vars, context.design(), pageOptions);
    addSlotVariables(vars, context, ImageSlot::CartPage_Checkout_Button);
    // An empty cart adds nothing more, not even HAS_ITEMS.
    if (context.cart().Count() == 0) {
        return;
    }
    Total total;
    VariableRows lines = lineRows(context, total);
    vars.Add(u"totalcost", total.sum());
    vars.Add(u"products", std::move(lines));
    vars.Add(u"HAS_ITEMS", u"Yes"_s);
}
