#include "model/clsPrice.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <cmath>
#include <limits>

QString CalculateNewPrice(const QString& price, const QString& percent)
{
    const double p = numberOrZero(percent);
    const double v = numberOrZero(price);
    const double n = (1 - p / 100) * v;
    const double r = p != 0 ? n : v;
    if (!std::isfinite(r)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return numberToText(numberFromText(formatTwoDecimals(r)));
}

QString clsMultiPrice::NewValue() const
{
    if (!Discount) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return CalculateNewPrice(Value, Discount->Value(Value));
}

std::shared_ptr<clsMultiPrice> clsMultiPrice::CreateClone() const
{
    auto clone = std::make_shared<clsMultiPrice>(*this);
    clone->Discount.reset();
    return clone;
}

clsPrice::clsPrice(const Clock& clock) : m_clock(&clock) {}

const std::shared_ptr<clsDiscount>& clsPrice::Discount()
{
    if (!m_discount) {
        m_discount = std::make_shared<clsDiscount>(*m_clock);
    }
    return m_discount;
}

QString clsPrice::NewPrice(const QString& price)
{
    return CalculateNewPrice(price, Discount()->Value(price));
}

QString clsPrice::SelectedNew()
{
    return NewPrice(Selected);
}

QString clsPrice::OldPrice() const
{
    if (!m_multiPrices.isEmpty()) {
        throw RuntimeError(ErrorNumber::OutOfStackSpace);
    }
    return Value;
}

std::shared_ptr<clsMultiPrice> clsPrice::AddMultiPrice()
{
    auto multiPrice = std::make_shared<clsMultiPrice>();
    AddExistingMultiPrice(multiPrice);
    return multiPrice;
}

void clsPrice::AddExistingMultiPrice(const std::shared_ptr<clsMultiPrice>& multiPrice)
{
    multiPrice->Discount = Discount();
    m_multiPrices.Add(multiPrice);
}

void clsPrice::RemoveMultiPrice(int index)
{
    m_multiPrices.Remove(index);
}

const std::shared_ptr<clsMultiPrice>& clsPrice::GetMultiPrice(int index) const
{
    return m_multiPrices.Item(index);
}

qint16 clsPrice::MultiPriceCount() const
{
    const int count = m_multiPrices.Count();
    if (count > std::numeric_limits<qint16>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<qint16>(count);
}

void clsPrice::FindMultiPrice(const QString& price, QString& value, QString& description) const
{
    for (const std::shared_ptr<clsMultiPrice>& multiPrice : m_multiPrices) {
        if (multiPrice->NewValue() == price) {
            value = multiPrice->Value;
            description = multiPrice->Description;
            return;
        }
    }
    value = Value;
    description.clear();
}

std::shared_ptr<clsPrice> clsPrice::CreateClone()
{
    auto clone = std::make_shared<clsPrice>(*this);
    clone->setDiscount(Discount()->CreateClone());
    clone->clearMultiPrices();
    for (const std::shared_ptr<clsMultiPrice>& multiPrice : m_multiPrices) {
        clone->AddExistingMultiPrice(multiPrice->CreateClone());
    }
    return clone;
}
