#include "DescribedShop.h"

#include "model/CategoryClass.h"
#include "model/ProductClass.h"

using namespace Qt::StringLiterals;

namespace {

class Describer
{
public:
    QStringList lines;

    void add(const QString& name, const QString& value) { lines.append(m_place + u'/' + name + u'=' + value); }
    void add(const QString& name, int value) { add(name, QString::number(value)); }

    // Describes a part of the whole under a place of its own.
    template <class Work>
    void inside(const QString& place, Work&& work)
    {
        const QString before = m_place;
        m_place += u'/' + place;
        work();
        m_place = before;
    }

    void texts(const QString& name, const std::shared_ptr<TextCollection>& collection)
    {
        add(name, collection ? collection->Count() : -1);
        if (collection) {
            for (const QString& text : *collection) {
                add(name, text);
            }
        }
    }

    void discount(clsDiscount& discount)
    {
        add(u"Status"_s, discount.Status);
        add(u"DateFrom"_s, discount.DateFrom);
        add(u"DateTo"_s, discount.DateTo);
        add(u"Specific"_s, discount.Specific());
        add(u"ApplyToWhole"_s, discount.ApplyToWhole());
        add(u"Inherit"_s, discount.Inherit);
        add(u"Childs"_s, discount.Childs().Count());
        for (const clsDependedDiscount& band : *discount.DependedDiscounts()) {
            add(u"band"_s, band.PriceFrom() + u'|' + band.PriceTo() + u'|' + band.Value());
        }
        add(u"bands from above"_s, discount.ParentDependDiscounts ? discount.ParentDependDiscounts->Count() : -1);
    }

    void image(const clsSelectedImage& image)
    {
        add(u"image"_s, image.imageFileName);
        add(u"type"_s, static_cast<int>(image.SelectionType));
        add(u"text"_s, image.TextValue);
        add(u"width"_s, image.cachedSize().width);
        add(u"height"_s, image.cachedSize().height);
    }

    void product(ProductClass& product)
    {
        for (const QString& text : {product.id, product.name, product.Description, product.Code, product.Price()->Value,
                                    product.Unit, product.LINK, product.ShippingStatus, product.Weight}) {
            add(u"text"_s, text);
        }
        add(u"ForSale"_s, product.ForSale ? 1 : 0);
        add(u"related"_s, product.related.join(u'|'));
        image(*product.selectedImage());
        discount(*product.Price()->Discount());
        texts(u"costs"_s, product.ShippingCosts());
        for (const auto& variant : product.Price()->MultiPriceCollection()) {
            add(variant->Description, variant->Value);
        }
    }

    void category(CategoryClass& category)
    {
        for (const QString& text : {category.id, category.name, category.Description}) {
            add(u"text"_s, text);
        }
        image(*category.selectedImage());
        discount(*category.Discount());
        for (const auto& child : category.categories) {
            inside(u"category "_s + child->id, [&] { this->category(*child); });
        }
        for (const auto& child : category.products) {
            inside(u"product "_s + child->id, [&] { product(*child); });
        }
    }

    void design(const ShopDesignClass& design)
    {
        for (const DesignOptionRow& row : designOptionTable()) {
            add(row.name, design.Option(row.option));
        }
        for (std::size_t i = 0; i < ImageSlotCount; ++i) {
            image(*design.Image(static_cast<ImageSlot>(i)));
        }
        for (std::size_t i = 0; i < PageSelectionCount; ++i) {
            for (const QString& name : design.Pages(static_cast<PageSelection>(i))->selectedPages()) {
                add(u"page %1"_s.arg(i), name);
            }
        }
    }

    void tables(const ShopClass& shop)
    {
        texts(u"countries"_s, shop.SelectedCountries);
        texts(u"types"_s, shop.ShippingTypeName);
        texts(u"type descriptions"_s, shop.ShippingTypeDescription);
        texts(u"from"_s, shop.ShippingCostFrameFrom);
        texts(u"to"_s, shop.ShippingCostFrameTo);
        if (shop.ShippingCosts) {
            for (const TextCollection& row : *shop.ShippingCosts) {
                texts(u"costs"_s, std::make_shared<TextCollection>(row));
            }
        }
        for (const clsTax& tax : shop.Taxes) {
            add(tax.TaxName, tax.Percent() + tax.IsCheckedString());
        }
        for (const clsCharge& charge : shop.Charges) {
            add(charge.Destination, charge.Cost + charge.IsCheckedString());
        }
    }

private:
    QString m_place;
};

} // namespace

QStringList described(ShopClass& shop)
{
    Describer describer;
    for (const QString& text : {shop.name, shop.Description, shop.shop_currency, shop.Version, shop.MaxProductId}) {
        describer.add(u"text"_s, text);
    }
    describer.add(u"charges"_s, shop.ShippingChargesAreSelected ? 1 : 0);
    describer.add(u"taxes"_s, shop.TaxesAreSelected ? 1 : 0);
    describer.discount(*shop.Discount());
    describer.tables(shop);
    for (const auto& category : shop.categories) {
        describer.inside(u"category "_s + category->id, [&] { describer.category(*category); });
    }
    for (const auto& style : shop.CSSs) {
        for (const QString& text :
             {style->CSSName, style->ForeGroundColor, style->BackGroundColor, style->FontName, style->FontSize,
              style->IsBold, style->IsCursive, style->IsUndcelined, style->IsLineThrugh}) {
            describer.add(u"style"_s, text);
        }
    }
    for (const auto& page : shop.CustomPages) {
        for (const QString& text : {page->pageName, page->ImageName, page->ImageAligment, page->ContentText}) {
            describer.add(u"page"_s, text);
        }
    }
    describer.design(*shop.ShopDesign);
    return describer.lines;
}
