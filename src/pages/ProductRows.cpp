#include "pages/ProductRows.h"

#include "model/clsPrice.h"
#include "pages/TemplateUtils.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

class PriceText : public TextObject
{
public:
    explicit PriceText(std::shared_ptr<clsPrice> price) : m_price(std::move(price)) {}
    QString text() const override { return m_price->Value; }

private:
    std::shared_ptr<clsPrice> m_price;
};

} // namespace

QString priceTypeOf(const clsPrice& price)
{
    return hasVariants(price) ? u"Multi"_s : u"Single"_s;
}

bool hasVariants(const clsPrice& price)
{
    return price.MultiPriceCount() != 0;
}

VariableValue priceVariable(const std::shared_ptr<clsPrice>& price)
{
    return std::make_shared<const PriceText>(price);
}

QString ifDiscounted(clsPrice& price, const QString& askedPrice, const QString& discountedText)
{
    return price.Discount()->Value(askedPrice).isEmpty() ? QString() : discountedText;
}

// The discount is asked once for both. The new price is worked out even if no template shows it: a price that is no
// number fails its page.
QString newPriceIfDiscounted(clsPrice& price, const QString& askedPrice)
{
    const QString percentage = price.Discount()->Value(askedPrice);
    const QString discounted = CalculateNewPrice(askedPrice, percentage);
    return percentage.isEmpty() ? QString() : discounted;
}

void addSinglePrice(Variables& vars, const std::shared_ptr<clsPrice>& price)
{
    vars.Add(u"price", priceVariable(price));
    vars.Add(u"new_price", newPriceIfDiscounted(*price, price->Value));
}

VariableRows variantRows(const PageContext& context, clsPrice& price, const VariantOptions& options)
{
    const ShopDesignClass& design = context.design();
    VariableRows rows;
    for (const auto& variant : price.MultiPriceCollection()) {
        Variables row = context.newVariables();
        row.Add(u"PriceDescription", variant->Description);
        row.Add(u"MPrice", variant->Value);
        row.Add(u"shop_currency", context.shop().shop_currency);
        addOptions(row, design, {&options.description, 1});
        if (rows.empty()) {
            row.Add(u"first_price", u"1"_s);
        }
        const bool isDiscounted = !price.Discount()->Value(variant->Value).isEmpty();
        row.Add(u"Mnew_price", isDiscounted ? variant->NewValue() : QString());
        addOptions(row, design, options.prices);
        rows.push_back(std::move(row));
    }
    return rows;
}

DescriptionCutter::DescriptionCutter(const ShopDesignClass& design, DesignOption limit)
    : m_blank(u" "_s), m_words(design.Option(limit).toInt())
{
    m_tags.setPattern(u"<[^>]*>"_s);
}

VariableRows relatedRows(const PageContext& context, const ProductClass& product)
{
    VariableRows rows;
    for (int i = 0; i < product.relatedCount(); ++i) {
        const ProductClass& related = *context.objects().Product(product.related[i]);
        Variables row = context.newVariables();
        row.Add(u"rid", related.id);
        row.Add(u"rname", related.name);
        row.Add(u"server", serverAddress());
        rows.push_back(std::move(row));
    }
    return rows;
}

void addRelated(Variables& vars, const PageContext& context, const ProductClass& product)
{
    VariableRows related = relatedRows(context, product);
    vars.Add(u"hasrelated", related.empty() ? QString() : u"yes"_s);
    if (!related.empty()) {
        vars.Add(u"related", std::move(related));
    }
}

VariableRows breadcrumbRows(const PageContext& context, const CategoryClass& category)
{
    VariableRows rows;
    std::shared_ptr<const CategoryClass> parent;
    for (const CategoryClass* level = &category; level != nullptr; level = parent.get()) {
        Variables row = context.newVariables();
        row.Add(u"name", level->name);
        row.Add(u"id", level->id);
        row.Add(u"server", serverAddress());
        rows.push_back(std::move(row));
        parent = level->parentCategory.lock();
    }
    std::reverse(rows.begin(), rows.end());
    return rows;
}
