// What the category, product, search and cart pages have in common: prices, variants, shortened descriptions, related
// products and the path from the root down to a category.
#pragma once

#include "design/DesignOptions.h"
#include "pages/PageContext.h"
#include "template_engine/clsRegExp.h"

#include <QString>

#include <array>
#include <memory>

// "Multi" for a price with variants, else "Single".
QString priceTypeOf(const clsPrice& price);
bool hasVariants(const clsPrice& price);

// The value of a "price" variable: the price itself, whose text is its Value as stored, unformatted.
VariableValue priceVariable(const std::shared_ptr<clsPrice>& price);

// The discounted text when a discount applies to the price that is asked for, else the empty text. Which text is asked
// for differs from page to page. Errors as for clsDiscount::Value.
QString ifDiscounted(clsPrice& price, const QString& askedPrice, const QString& discountedText);

// The same for the discounted text of the very price that is asked for. Errors as for clsPrice::NewPrice.
QString newPriceIfDiscounted(clsPrice& price, const QString& askedPrice);

// Adds "price" and "new_price" of a price without variants. Errors as for clsPrice::NewPrice.
void addSinglePrice(Variables& vars, const std::shared_ptr<clsPrice>& price);

// The design options in a row of variants, which differ from page to page.
struct VariantOptions
{
    DesignOption description;
    std::array<DesignOption, 3> prices;
};

// The rows of "MultiplePrice". Only the first row has "first_price".
VariableRows variantRows(const PageContext& context, clsPrice& price, const VariantOptions& options);

// Shortens descriptions for one page: tags become blanks, and the text is cut after a number of words. A page keeps one
// for all its rows.
class DescriptionCutter
{
public:
    // The option holds the number of words; 0 and an empty text cut nothing.
    DescriptionCutter(const ShopDesignClass& design, DesignOption limit);

    // ErrorNumber::Overflow for a text whose words reach too far, see clsRegExp::Replace.
    QString cut(const QString& description) { return m_tags.Replace(description, m_blank, m_words); }

private:
    clsRegExp m_tags;
    QString m_blank;
    int m_words;
};

// The rows of "related", none when the product has no related products. ErrorNumber::InvalidArgument for an id that is
// no longer in the catalogue, TypeMismatch for the id of a category.
VariableRows relatedRows(const PageContext& context, const ProductClass& product);
// Adds "hasrelated", and behind it "related" when there are related products.
void addRelated(Variables& vars, const PageContext& context, const ProductClass& product);

// The rows of "breadcrumb": from the root category down to this one. The shop is no row.
VariableRows breadcrumbRows(const PageContext& context, const CategoryClass& category);
