#include "model/clsCart.h"

#include "base/ApplicationTitle.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/UserPrompts.h"
#include "model/ObjectsCollection.h"
#include "model/ProductClass.h"

using namespace Qt::StringLiterals;

clsCartProduct::clsCartProduct(const ModelServices& services) : m_services(&services) {}

QString clsCartProduct::ProductName() const
{
    return ParentProduct()->name;
}

const std::shared_ptr<ProductClass>& clsCartProduct::ParentProduct() const
{
    return m_services->objects.Product(id);
}

void clsCartProduct::setSelectedPrice(const QString& price)
{
    ParentProduct(); // fails on a product that has gone
    m_selectedPrice = price;
}

QString clsCartProduct::PriceName()
{
    const std::shared_ptr<clsPrice> price = ParentProduct()->Price();
    if (price->MultiPriceCount() == 0) {
        m_priceName.clear();
        return m_priceName;
    }
    for (const std::shared_ptr<clsMultiPrice>& multiPrice : price->MultiPriceCollection()) {
        if (multiPrice->NewValue() == m_selectedPrice) {
            m_priceName = multiPrice->Description;
            break;
        }
    }
    return m_priceName;
}

clsCart::clsCart(const ModelServices& services) : m_services(&services) {}

void clsCart::AddNewProduct(const QString& id, const QString& /*productName*/,
                            const std::shared_ptr<ProductClass>& product, const QString& price, const QString& quantity)
{
    const QString key = id + price;
    auto line = std::make_shared<clsCartProduct>(*m_services);
    line->id = id;
    line->setParentProduct(product);
    line->Quantity = quantity;
    line->setSelectedPrice(price);
    try {
        m_lines.Add(line, key);
    } catch (const RuntimeError& error) {
        if (error.number() == ErrorNumber::DuplicateKey) {
            QString& sum = m_lines.Item(key)->Quantity;
            sum = numberToText(Val(sum) + Val(quantity));
            return;
        }
        m_services->design.prompts.showMessage(
            applicationTitle(),
            u"Unexpected error in clsCart.AddNewProduct\r\n%1 - %2"_s.arg(static_cast<int>(error.number()))
                .arg(error.description()),
            PromptIcon::Critical);
    }
}

void clsCart::Recalculate(const QString& id, const QString& price, const QString& quantity)
{
    const QString key = id + price;
    try {
        if (quantity == "0"_L1) {
            m_lines.Remove(key);
        } else {
            m_lines.Item(key)->Quantity = quantity;
        }
    } catch (const RuntimeError& error) {
        if (error.number() == ErrorNumber::InvalidArgument) {
            return;
        }
        m_services->design.prompts.showMessage(
            applicationTitle(),
            u"clsCart.Recalculate \r\nUnexpected error #%1: \r\n%2"_s.arg(static_cast<int>(error.number()))
                .arg(error.description()),
            PromptIcon::Critical);
    }
}

QString clsCart::TotalCost() const
{
    // Every step is rounded to a single.
    float total = 0;
    for (const std::shared_ptr<clsCartProduct>& line : m_lines) {
        total = singleFrom(numberFromText(line->SelectedPrice()) + static_cast<double>(total));
    }
    const float factor = tax / 100.0F + 1.0F;
    total = factor * total;
    const float sum = Charge + total;
    const double rounded = numberFromText(formatTwoDecimals(static_cast<double>(sum)));
    return singleToShortestText(static_cast<float>(rounded));
}

void failWithoutCart()
{
    throw RuntimeError(ErrorNumber::ObjectNotSet)
        .because(u"The cart is gone since the closing of the program was cancelled. The next start has one again."_s);
}

bool ConfirmEmptyCart(clsCart* cart, UserPrompts& prompts)
{
    if (cart == nullptr) {
        failWithoutCart();
    }
    if (cart->Count() == 0) {
        return true;
    }
    const bool agreed =
        prompts.askYesNo(u"Your shopping cart isn't empty"_s, u"Do you want make changs and empty cart?\r\n\r\n"
                                                              "YES - cart will be emptied\r\n"
                                                              "NO - changing will be impossible"_s);
    if (agreed) {
        cart->Clear();
    }
    return agreed;
}
