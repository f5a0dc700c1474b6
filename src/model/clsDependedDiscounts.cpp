#include "model/clsDependedDiscounts.h"

#include "base/Numbers.h"

QString clsDependedDiscount::PriceFrom() const
{
    return NormalizeDecimal(m_priceFrom);
}

QString clsDependedDiscount::PriceTo() const
{
    return NormalizeDecimal(m_priceTo);
}

QString clsDependedDiscount::Value() const
{
    return NormalizeDecimal(m_value);
}

clsDependedDiscount& clsDependedDiscounts::Add(const QString& priceFrom, const QString& priceTo, const QString& value,
                                               const QString& key)
{
    clsDependedDiscount band;
    band.setPriceFrom(NormalizeDecimal(priceFrom));
    band.setPriceTo(NormalizeDecimal(priceTo));
    band.setValue(NormalizeDecimal(value));
    if (key.isEmpty()) {
        m_items.Add(std::move(band));
    } else {
        m_items.Add(std::move(band), key);
    }
    return m_items.Item(m_items.Count());
}

void clsDependedDiscounts::Clear()
{
    m_items.Clear();
}
