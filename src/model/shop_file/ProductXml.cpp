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

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Place = FlatElements::Place;
constexpr Place none = FlatElements::none;

// A product's element while it is read.
class ProductElement
{
public:
    ProductElement(const pugi::xml_node& element, ProductReading& reading) : m_reading(reading)
    {
        elements().gather(element);
        elements().findFirst(0, m_found);
    }

    bool has(inProduct::Element name) const { return m_found[name] != none; }
    // A text of the product's own.
    QString text(inProduct::Element name, const QString& defaultText = QString()) const
    {
        return elements().text(m_found[name], defaultText);
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
        readDate(found[inProduct::DateFrom], discount.DateFrom);
        readDate(found[inProduct::DateTo], discount.DateTo);
        discount.setSpecific(sharedAt(found[inProduct::Specific], u"0"_s));
    }

    void readShipping(ProductClass& product, const ShopClass& shop) const
    {
        const Place shipping = m_found[inProduct::Shipping];
        const Found found = foundBelow(shipping);
        product.ShippingStatus = sharedAt(found[inProduct::ShippingStatus], u"No"_s);
        product.Weight = sharedAt(found[inProduct::Weight], u"0"_s);
        if (!shop.ShippingTypeName || shop.ShippingTypeName->isEmpty()) {
            return;
        }
        const int typeCount = shop.ShippingTypeName->Count();
        m_reading.numbered.resize(static_cast<std::size_t>(typeCount));
        elements().findNumbered("ShippingCost", 1, shipping, m_reading.numbered);
        TextCollection& costs = *product.ShippingCosts();
        costs.reserve(typeCount);
        for (int i = 1; i <= typeCount; ++i) {
            costs.Add(sharedAt(m_reading.numbered[static_cast<std::size_t>(i - 1)], QString()),
                      shop.ShippingTypeName->Item(i));
        }
    }

    // A price of a variant is read by the plain number scan, which stops at a comma, though the writer writes one where
    // the user's locale has it: this is meant.
    void readMultiPrices(clsPrice& price) const
    {
        for (Place row = m_found[inProduct::MultiplePrice]; row != none;
             row = elements().next(inProduct::MultiplePrice, row, 0)) {
            const Found found = foundBelow(row);
            const std::shared_ptr<clsMultiPrice> multiPrice = price.AddMultiPrice();
            multiPrice->Description = sharedAt(found[inProduct::PriceDescription], QString());
            multiPrice->Value = scannedNumber(sharedAt(found[inProduct::MPrice], QString()));
        }
    }

    // Files of older versions have the ids at any depth. Versions are compared as text, so that 1.10.0 counts as older
    // than 1.2.0: this is meant.
    QStringList relatedIds(const QString& fileVersion) const
    {
        const pugi::xml_node related =
            has(inProduct::Related) ? elements().node(m_found[inProduct::Related]) : pugi::xml_node();
        QStringList ids;
        if (fileVersion < u"1.2.0"_s) {
            for (const pugi::xml_node& found : allDescendants(related, "RId")) {
                ids.append(nodeText(found));
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

    void readTaxes(TextCollection& taxes, int taxCount) const
    {
        m_reading.numbered.resize(static_cast<std::size_t>(taxCount));
        elements().findNumbered("Tax", 0, m_found[inProduct::ProductTaxes], m_reading.numbered);
        for (const Place place : m_reading.numbered) {
            taxes.Add(sharedAt(place, u"N"_s));
        }
    }

private:
    using Found = std::array<Place, inProduct::Count>;

    FlatElements& elements() const { return m_reading.elements; }

    Found foundBelow(Place place) const
    {
        Found found{};
        elements().findFirst(place, found);
        return found;
    }

    QString sharedAt(Place place, const QString& defaultText) const
    {
        if (place == none) {
            return defaultText;
        }
        const char* raw = elements().rawText(place);
        return raw != nullptr ? m_reading.pool.text(raw) : elements().text(place);
    }

    // The date of a file as local text; what is no date counts as none.
    void readDate(Place place, QString& date) const
    {
        const QString text = sharedAt(place, QString());
        if (!text.isEmpty()) {
            date = m_reading.pool.date(text);
        }
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

    ProductReading& m_reading;
    Found m_found{};
};

} // namespace

void ProductClass::FromXML(const pugi::xml_node& element, ShopClass& owner,
                           const std::shared_ptr<CategoryClass>& parent, ShopReading& reading)
{
    shop = &owner;
    category = parent;
    const ProductElement read(element, reading.products);
    reading.designSeenInCategory = reading.designSeenInCategory || read.has(inProduct::ShopDesign);
    id = read.text(inProduct::Id);
    if (id.isEmpty()) {
        id = owner.getNextProductId();
    }
    name = read.text(inProduct::Name, u"UNDEFINED_PRODUCT_NAME"_s);
    Description = read.text(inProduct::Description);
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
        read.readShipping(*this, owner);
    }
    read.readMultiPrices(price);
    setRelatedIds(read.relatedIds(reading.fileVersion));
    if (read.has(inProduct::ProductTaxes)) {
        read.readTaxes(*Taxes(), owner.Taxes.Count());
    }
}

// ProductTaxes is not written: the choices live for the session only. This is meant.
void ProductClass::ToXML(pugi::xml_node element)
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
    writeNodeImage(element, *this);
    writePriceDiscount(AddChildElement(element, "Discount", container), *Price()->Discount());

    const pugi::xml_node shipping = AddChildElement(element, "Shipping", container);
    AddChildElement(shipping, "ShippingStatus", ShippingStatus);
    AddChildElement(shipping, "Weight", NormalizeDecimal(Weight));
    if (const std::shared_ptr<TextCollection>& types = currentShop(*m_services).ShippingTypeName) {
        for (int i = 1; i <= types->Count(); ++i) {
            const int cost = m_shippingCosts ? m_shippingCosts->indexOf(types->Item(i)) : 0;
            addNumberedElement(shipping, "ShippingCost", i,
                               cost != 0 ? NormalizeDecimal(m_shippingCosts->Item(cost)) : QString());
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
