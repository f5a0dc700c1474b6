// The root of one shop: it owns the catalogue, the shop's discount, shipping tables, taxes, charges, countries, styles,
// custom pages and design options. The session has one for as long as it lives. All numbers are held as text.
#pragma once

#include "base/KeyedCollection.h"
#include "base/Unwritable.h"
#include "base/XmlNode.h"
#include "design/CSSClass.h"
#include "design/CustomPageClass.h"
#include "design/ShopDesignClass.h"
#include "model/CategoryClass.h"
#include "model/ModelServices.h"
#include "model/ProductClass.h"
#include "model/clsCharge.h"
#include "model/clsDiscount.h"
#include "model/clsTax.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct ShopReading;

class ShopClass
{
public:
    explicit ShopClass(const ModelServices& services);

    QString name;
    QString Description;
    QString shop_currency;
    QString Version;      // of the running program; set by a load
    QString MaxProductId; // the highest id handed out, a whole number as text
    bool ShippingChargesAreSelected = false;
    bool TaxesAreSelected = false;

    // These six are absent (null) until a shop file, or a panel, brings them.
    std::shared_ptr<TextCollection> SelectedCountries;       // each country is its own key
    std::shared_ptr<TextCollection> ShippingTypeName;        // keys "ship_name0", "ship_name1", ...
    std::shared_ptr<TextCollection> ShippingTypeDescription; // keys "ship_desc0", ...
    std::shared_ptr<TextCollection> ShippingCostFrameFrom;   // weights in kilograms, keys "from0", ...
    std::shared_ptr<TextCollection> ShippingCostFrameTo;     // keys "to0", ...
    // One row a frame, without keys; in it one cost a shipping type, keys "cost0", ...
    std::shared_ptr<KeyedCollection<TextCollection>> ShippingCosts;

    KeyedCollection<clsTax> Taxes;                                 // without keys
    KeyedCollection<clsCharge> Charges;                            // without keys
    KeyedCollection<std::shared_ptr<CategoryClass>> categories;    // root categories, under "ID" and the id
    KeyedCollection<std::shared_ptr<CSSClass>> CSSs;               // under "ID" and the name
    KeyedCollection<std::shared_ptr<CustomPageClass>> CustomPages; // under the name
    std::shared_ptr<ShopDesignClass> ShopDesign;

    // The root of the discount tree; status 1 until it is set.
    const std::shared_ptr<clsDiscount>& Discount() const { return m_discount; }
    void setDiscount(std::shared_ptr<clsDiscount> discount) { m_discount = std::move(discount); }

    // Raises MaxProductId by one and returns it. ErrorNumber::TypeMismatch when it is no whole number, Overflow when it
    // is the largest one; it then stays as it is.
    QString getNextProductId();
    // Products of the whole catalogue. ErrorNumber::Overflow when a category has more than 32767.
    qint32 GetProductCount() const;

    // The element is the "Shop" element; ToXML is given an empty one. Reading a file of another version asks for a save
    // at its end. The first error ends the reading and nothing read so far is undone. Both are the work of
    // model/shop_file, which also reads and writes the whole file.
    void FromXML(const pugi::xml_node& element, ShopReading& reading);
    void ToXML(pugi::xml_node element, Unwritable unwritable = Unwritable::Raises);

    // Imports one product from the root down: see CatalogueImport::addProduct.
    void ImportCategory(QStringList& fields);

    // Keeps a category that was removed from the catalogue, so that a product that was removed from it before, and can
    // still be shown, finds its category.
    void keepRemoved(std::shared_ptr<CategoryClass> category) { m_removed.push_back(std::move(category)); }

    const ModelServices& services() const { return *m_services; }

private:
    const ModelServices* m_services;
    std::shared_ptr<clsDiscount> m_discount;
    std::vector<std::shared_ptr<CategoryClass>> m_removed;
};
