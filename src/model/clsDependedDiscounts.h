// The bands of a discount that depends on the price. A clsDiscount owns one list and shares it with the levels below.
#pragma once

#include "base/KeyedCollection.h"

#include <QString>

// One band. Limits and percentage are number texts; they are read in the user's decimal form, whatever form they were
// stored in.
class clsDependedDiscount
{
public:
    QString PriceFrom() const;
    QString PriceTo() const;
    QString Value() const;
    void setPriceFrom(const QString& text) { m_priceFrom = text; }
    void setPriceTo(const QString& text) { m_priceTo = text; }
    void setValue(const QString& text) { m_value = text; }

private:
    QString m_priceFrom;
    QString m_priceTo;
    QString m_value;
};

class clsDependedDiscounts
{
public:
    // Appends a band, under a key when that is not empty, and returns it; the reference holds until the next change of
    // the list. ErrorNumber::DuplicateKey when the key is there already.
    clsDependedDiscount& Add(const QString& priceFrom, const QString& priceTo, const QString& value,
                             const QString& key = QString());

    // 1-based. ErrorNumber::SubscriptOutOfRange when there is no such band.
    clsDependedDiscount& Item(int index) { return m_items.Item(index); }
    const clsDependedDiscount& Item(int index) const { return m_items.Item(index); }
    int Count() const { return m_items.Count(); }
    void Remove(int index) { m_items.Remove(index); }
    void Clear();

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    KeyedCollection<clsDependedDiscount> m_items;
};
