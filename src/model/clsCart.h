// The preview's shopping cart. The session has one until the window is asked to close; it is never saved.
#pragma once

#include "base/KeyedCollection.h"
#include "model/ModelServices.h"

#include <QString>

#include <memory>

class ProductClass;
class UserPrompts;

// One line of the cart: a product at a price.
class clsCartProduct
{
public:
    explicit clsCartProduct(const ModelServices& services);

    QString id;
    QString Quantity; // a number text as entered

    // The name of the product in the catalogue. Errors as for ParentProduct.
    QString ProductName() const;
    // The product in the catalogue, not the one that was set. ErrorNumber::InvalidArgument when it is gone.
    const std::shared_ptr<ProductClass>& ParentProduct() const;
    void setParentProduct(std::shared_ptr<ProductClass> product) { m_parentProduct = std::move(product); }

    // The price of one unit. Setting it asks for the product first: errors as for ParentProduct.
    const QString& SelectedPrice() const { return m_selectedPrice; }
    void setSelectedPrice(const QString& price);

    // The description of the variant whose discounted value is SelectedPrice; empty for a product without variants.
    // When no variant matches, the last answer is deliberately given again.
    QString PriceName();

private:
    const ModelServices* m_services;
    std::shared_ptr<ProductClass> m_parentProduct;
    QString m_selectedPrice;
    QString m_priceName;
};

class clsCart
{
public:
    explicit clsCart(const ModelServices& services);

    float tax = 0;    // percent
    float Charge = 0; // amount

    // Adds a line, or adds the quantity to the line of the same product at the same price. ErrorNumber::InvalidArgument
    // when the product is not in the catalogue.
    void AddNewProduct(const QString& id, const QString& productName, const std::shared_ptr<ProductClass>& product,
                       const QString& price, const QString& quantity);
    // Sets a line's quantity; "0" removes the line. A line that is not there is passed over.
    void Recalculate(const QString& id, const QString& price, const QString& quantity);

    // Lines by 1-based position, or by key: the id followed by the price. ErrorNumber::SubscriptOutOfRange or
    // InvalidArgument when there is none.
    const std::shared_ptr<clsCartProduct>& Item(int index) const { return m_lines.Item(index); }
    const std::shared_ptr<clsCartProduct>& Item(const QString& key) const { return m_lines.Item(key); }
    int Count() const { return m_lines.Count(); }
    void Remove(int index) { m_lines.Remove(index); }
    void Remove(const QString& key) { m_lines.Remove(key); }
    // Removes all lines; tax and Charge stay.
    void Clear() { m_lines.Clear(); }

    // The prices of all lines, deliberately whatever their quantities, with tax and charge, rounded to two decimals, as
    // number text. ErrorNumber::TypeMismatch when a price is no number, ErrorNumber::Overflow when the sum is too
    // large.
    QString TotalCost() const;

    auto begin() const { return m_lines.begin(); }
    auto end() const { return m_lines.end(); }

private:
    const ModelServices* m_services;
    KeyedCollection<std::shared_ptr<clsCartProduct>> m_lines;
};

// The session has no cart any more, since the closing of the program was cancelled: ErrorNumber::ObjectNotSet with that
// reason.
[[noreturn]] void failWithoutCart();

// True when the cart is empty or the user agrees to empty it, which is then done. Fails as above when there is no cart.
bool ConfirmEmptyCart(clsCart* cart, UserPrompts& prompts);
