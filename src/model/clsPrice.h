// The price of one product: a plain value, or a list of named variants, with the product's discount. A product owns
// one; the preview's copy of a product has a copy. Prices are number texts; nothing discounted is stored.
#pragma once

#include "base/Clock.h"
#include "base/KeyedCollection.h"
#include "model/clsDiscount.h"

#include <QString>
#include <QtGlobal>

#include <memory>

// The price lowered by that many percent, rounded to two decimals, shortest form; an empty text counts as 0. Both and
// the result are number texts of the user's locale. ErrorNumber::TypeMismatch when one is no number,
// ErrorNumber::Overflow when the result is out of range.
QString CalculateNewPrice(const QString& price, const QString& percent);

// One variant of a price.
class clsMultiPrice
{
public:
    QString Description;
    QString Value;
    std::shared_ptr<clsDiscount> Discount; // the one of the price that holds the variant; none before that

    // The discounted Value. ErrorNumber::ObjectNotSet when the variant has no discount, others as for
    // CalculateNewPrice.
    QString NewValue() const;
    // Without the discount.
    std::shared_ptr<clsMultiPrice> CreateClone() const;
};

class clsPrice
{
public:
    explicit clsPrice(const Clock& clock);

    qint16 PriceType = 0; // copied, without any other effect
    QString Value;        // the plain price as typed or read
    QString Selected;     // the price that was chosen in the preview

    // The product's discount, which all variants share. Made on first use, with status 0.
    const std::shared_ptr<clsDiscount>& Discount();
    void setDiscount(std::shared_ptr<clsDiscount> discount) { m_discount = std::move(discount); }

    // A price with the discount that applies to that very price. Errors as for CalculateNewPrice and
    // clsDiscount::Value.
    QString NewPrice(const QString& price);
    QString SelectedNew();
    // The plain price. ErrorNumber::OutOfStackSpace for a price with variants.
    QString OldPrice() const;

    // The variants, without keys.
    const KeyedCollection<std::shared_ptr<clsMultiPrice>>& MultiPriceCollection() const { return m_multiPrices; }
    std::shared_ptr<clsMultiPrice> AddMultiPrice();
    void AddExistingMultiPrice(const std::shared_ptr<clsMultiPrice>& multiPrice);
    // Indexes are 1-based. ErrorNumber::SubscriptOutOfRange when there is no such variant.
    void RemoveMultiPrice(int index);
    const std::shared_ptr<clsMultiPrice>& GetMultiPrice(int index) const;
    // ErrorNumber::Overflow above 32767.
    qint16 MultiPriceCount() const;
    // Removes all variants.
    void clearMultiPrices() { m_multiPrices.Clear(); }

    // The Value and Description of the first variant whose discounted value is that text; without one, this price's own
    // Value and an empty description.
    void FindMultiPrice(const QString& price, QString& value, QString& description) const;

    // The same price with a discount and variants of its own.
    std::shared_ptr<clsPrice> CreateClone();

private:
    const Clock* m_clock;
    std::shared_ptr<clsDiscount> m_discount;
    KeyedCollection<std::shared_ptr<clsMultiPrice>> m_multiPrices;
};
