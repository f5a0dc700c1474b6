// The product's element in the shop file. There can be very many, so that its elements are walked over once, for all
// look-ups, and texts that stand in many products are shared.
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "model/shop_file/CatalogueXml.h"
#include "model/shop_file/DiscountXml.h"
#include "model/shop_file/NodeImageXml.h"
#include "model/shop_file/ShopReading.h"
#include "model/shop_file/TableRows.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Place = FlatElements::Place;
constexpr Place none = FlatElements::none;

constexpr std::array<std::size_t, 2> inMultiplePrice = {inProduct::PriceDescription, inProduct::MPrice};

// A product's element while it is read.
class ProductElement
{
public:
    ProductElement(const pugi::xml_node& element, ShopReading& reading) : m_reading(reading)
    {
        elements().gather(element);
        elements().findFirst(0, m_found);
    }

    bool has(inProduct::Element name) const { return m_found[name] != none; }
    // A text of the product's own.
    QString text(inProduct::Element name, const QString& defaultText = QString()) const
    {
        return elements().text(m_found[name], m_reading.texts, defaultText);
    }
    // The same for one that the category above has, too, when it lacks its own.
    QString text(inProduct::Element name, inCategory::Element nameAbove, const QString& defaultText = QString()) const
    {
        const QString* known =
            has(name) ? m_reading.categories.known(nameAbove, elements().node(m_found[name])) : nullptr;
        return known != nullptr ? *known : text(name, defaultText);
    }
    // A text that other products are likely to have, too.
    QString sharedText(inProduct::Element name, const QString& defaultText = QString()) const
    {
        return sharedAt(m_found[name], defaultText);
    }

    void readDiscount(clsDiscount& discount) const
    {
        const Found found = foundBelow(m_found[inProduct::Discount]);
        discount.Status = StatusFromWord(sharedAt(found[inProduct::Status], u"No"_s));
        discount.DateFrom = m_reading.pool.date(sharedAt(found[inProduct::DateFrom], QString()));
        discount.DateTo = m_reading.pool.date(sharedAt(found[inProduct::DateTo], QString()));
        discount.setSpecific(sharedAt(found[inProduct::Specific], u"0"_s));
    }

    void readShipping(ProductClass& product) const
    {
        const Found found = foundBelow(m_found[inProduct::Shipping]);
        product.ShippingStatus = sharedAt(found[inProduct::ShippingStatus], u"No"_s);
        product.Weight = sharedAt(found[inProduct::Weight], u"0"_s);
    }

    // A price of a variant is read by the plain number scan, which stops at a comma, though the writer writes one where
    // the user's locale has it. Shops rely on both.
    void readMultiPrices(clsPrice& price) const
    {
        if (!has(inProduct::MultiplePrice)) {
            return;
        }
        for (TableRows rows(elements(), inProduct::MultiplePrice, 0, inMultiplePrice, m_reading); rows.next();) {
            const std::shared_ptr<clsMultiPrice> multiPrice = price.AddMultiPrice();
            multiPrice->Description = rows.text(0);
            multiPrice->Value = scannedNumber(rows.text(1));
        }
    }

    // Files of older versions have the ids at any depth. Versions are compared as text, so that 1.10.0 counts as older
    // than 1.2.0: an order that written files depend on.
    QStringList relatedIds() const
    {
        const pugi::xml_node related =
            has(inProduct::Related) ? elements().node(m_found[inProduct::Related]) : pugi::xml_node();
        QStringList ids;
        if (m_reading.fileVersion < u"1.2.0"_s) {
            for (const pugi::xml_node& found : allDescendants(related, "RId")) {
                ids.append(m_reading.texts.text(found));
            }
            return ids;
        }
        if (!related) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        for (const std::optional<QString>& id : firstGrandchildTexts(related)) {
            ids.append(id.value_or(QString()));
        }
        return ids;
    }

    // The numbered elements below one, as rows of a table of `count`.
    ProductTexts::Rows numberedTexts(inProduct::Element below, const char* prefix, int firstNumber, int count) const
    {
        std::vector<FlatElements::Numbered>& numbered = m_reading.products.numbered;
        elements().findNumbered(prefix, firstNumber, count, m_found[below], numbered);
        ProductTexts::Rows rows;
        rows.reserve(numbered.size());
        for (const FlatElements::Numbered& element : numbered) {
            rows.emplace_back(element.index + 1, sharedAt(element.place, QString()));
        }
        return rows;
    }

private:
    using Found = std::array<Place, inProduct::Count>;

    FlatElements& elements() const { return m_reading.products.elements; }

    Found foundBelow(Place place) const
    {
        Found found{};
        elements().findFirst(place, found);
        return found;
    }

    QString sharedAt(Place place, const QString& defaultText) const
    {
        return m_reading.text(elements(), place, defaultText);
    }

    static QString scannedNumber(const QString& text)
    {
        // A whole number without zeros ahead is its own text.
        constexpr qsizetype mostDigits = 9;
        bool isPlain = !text.isEmpty() && text.size() <= mostDigits && (text.front() != u'0' || text.size() == 1);
        for (const QChar letter : text) {
            isPlain = isPlain && letter >= u'0' && letter <= u'9';
        }
        return isPlain ? text : numberToText(Val(text));
    }

    ShopReading& m_reading;
    Found m_found{};
};

// A product's costs where its element names none: an empty one for each shipping type, under the type's name. None when
// the shop has no types. ErrorNumber::DuplicateKey when two types have one name.
const std::shared_ptr<const TextCollection>& shippingCostsPattern(const ShopClass& shop, ShopReading& reading)
{
    if (!reading.shippingCosts && shop.ShippingTypeName && !shop.ShippingTypeName->isEmpty()) {
        auto pattern = std::make_shared<TextCollection>();
        pattern->reserve(shop.ShippingTypeName->Count());
        for (const QString& type : *shop.ShippingTypeName) {
            pattern->Add(QString(), type);
        }
        reading.shippingCosts = std::move(pattern);
    }
    return reading.shippingCosts;
}

// A product's choice of taxes where its element says nothing: "N" for each.
const std::shared_ptr<const TextCollection>& taxesPattern(const ShopClass& shop, ShopReading& reading)
{
    if (!reading.taxes) {
        auto pattern = std::make_shared<TextCollection>();
        for (int i = 0; i < shop.Taxes.Count(); ++i) {
            pattern->Add(u"N"_s);
        }
        reading.taxes = std::move(pattern);
    }
    return reading.taxes;
}

} // namespace

void ProductClass::FromXML(const pugi::xml_node& element, ShopClass& owner,
                           const std::shared_ptr<CategoryClass>& parent, ShopReading& reading)
{
    shop = &owner;
    category = parent;
    const ProductElement read(element, reading);
    reading.designSeenInCategory = reading.designSeenInCategory || read.has(inProduct::ShopDesign);
    id = read.text(inProduct::Id, inCategory::Id);
    if (id.isEmpty()) {
        id = owner.getNextProductId();
    }
    name = read.text(inProduct::Name, inCategory::Name, u"UNDEFINED_PRODUCT_NAME"_s);
    Description = read.text(inProduct::Description, inCategory::Description);
    Code = read.text(inProduct::Code);
    clsPrice& price = *Price();
    price.Value = read.sharedText(inProduct::Price);
    ForSale = booleanFromWord(read.sharedText(inProduct::ForSale, u"True"_s));
    Unit = read.sharedText(inProduct::Unit);
    LINK = read.text(inProduct::Link);
    readNodeImage(*this, read.sharedText(inProduct::Picture), read.sharedText(inProduct::Width, u"0"_s),
                  read.sharedText(inProduct::Height, u"0"_s));
    if (read.has(inProduct::Discount)) {
        read.readDiscount(*price.Discount());
    }
    if (read.has(inProduct::Shipping)) {
        read.readShipping(*this);
        if (const auto& pattern = shippingCostsPattern(owner, reading)) {
            m_shippingCosts.setRead(pattern,
                                    read.numberedTexts(inProduct::Shipping, "ShippingCost", 1, pattern->Count()));
        }
    }
    read.readMultiPrices(price);
    setRelatedIds(read.relatedIds());
    if (read.has(inProduct::ProductTaxes)) {
        const auto& pattern = taxesPattern(owner, reading);
        m_taxes.setRead(pattern, read.numberedTexts(inProduct::ProductTaxes, "Tax", 0, pattern->Count()));
    }
}

// ProductTaxes is deliberately not written: the choices live for the session only.
void ProductClass::ToXML(pugi::xml_node element, Unwritable unwritable)
{
    static const QString container = u"HUERAGA"_s;
    AddChildElement(element, "Id", id);
    AddChildElement(element, "Name", name);
    AddChildElement(element, "Description", Description);
    AddChildElement(element, "Code", Code);
    AddChildElement(element, "Price", NormalizeDecimal(Price()->Value));
    AddChildElement(element, "ForSale", booleanToWord(ForSale));
    AddChildElement(element, "Unit", Unit);
    AddChildElement(element, "Link", LINK);
    writeNodeImage(element, *this, unwritable);
    writePriceDiscount(AddChildElement(element, "Discount", container), *Price()->Discount(), unwritable);

    const pugi::xml_node shipping = AddChildElement(element, "Shipping", container);
    AddChildElement(shipping, "ShippingStatus", ShippingStatus);
    AddChildElement(shipping, "Weight", NormalizeDecimal(Weight));
    if (const std::shared_ptr<TextCollection>& types = currentShop(*m_services).ShippingTypeName) {
        for (int i = 1; i <= types->Count(); ++i) {
            const QString* cost = m_shippingCosts.find(types->Item(i));
            addNumberedElement(shipping, "ShippingCost", i, cost != nullptr ? NormalizeDecimal(*cost) : QString());
        }
    }
    for (const std::shared_ptr<clsMultiPrice>& multiPrice : Price()->MultiPriceCollection()) {
        const pugi::xml_node row = AddChildElement(element, "MultiplePrice", container);
        AddChildElement(row, "PriceDescription", multiPrice->Description);
        AddChildElement(row, "MPrice", NormalizeDecimal(multiPrice->Value));
    }
    const pugi::xml_node relatedElement = AddChildElement(element, "Related", container);
    for (int i = 0; i < relatedCount(); ++i) {
        AddChildElement(AddChildElement(relatedElement, "ID", container), "RId", related[i]);
    }
}
