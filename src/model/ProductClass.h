// A product of the catalogue. Its category owns it; ObjectsCollection, the cart and the pages share it. There can be
// very many, so the parts that a product may lack are made on first use.
#pragma once

#include "base/KeyedCollection.h"
#include "base/Unwritable.h"
#include "base/XmlNode.h"
#include "design/clsSelectedImage.h"
#include "model/ModelServices.h"
#include "model/ProductTexts.h"
#include "model/clsPrice.h"

#include <QString>
#include <QStringList>

#include <memory>

struct ShopReading;

class ProductClass
{
public:
    explicit ProductClass(const ModelServices& services);

    ShopClass* shop = nullptr;             // the owning shop; none for a product that was imported
    std::weak_ptr<CategoryClass> category; // the category that holds the product
    QString id;
    QString name;
    QString Description;
    QString Code;
    QString Unit;
    QString LINK;
    // "No", "Weight" or "Individual". A new product has "Weight", one read from a file without the word "No": both are
    // deliberate.
    QString ShippingStatus;
    QString Weight;
    // Ids of related products; the last entry is always a spare empty one.
    QStringList related;
    QString Picture; // a picture's name as the product panel wrote it; the shop file does not have it
    qint16 QuantityInCart = 0;
    bool ForSale = true;

    // Made on first use; the discount then has status 1.
    const std::shared_ptr<clsPrice>& Price();
    void setPrice(std::shared_ptr<clsPrice> price) { m_price = std::move(price); }
    // Made on first use.
    const std::shared_ptr<clsSelectedImage>& selectedImage();
    bool hasSelectedImage() const { return m_selectedImage != nullptr; }
    void setSelectedImage(std::shared_ptr<clsSelectedImage> image) { m_selectedImage = std::move(image); }
    // The product's own cost per shipping type, under the type's name. Made on first use; a clone has the same object.
    const std::shared_ptr<TextCollection>& ShippingCosts() { return m_shippingCosts.table(); }
    // "Y" or "N" for each tax of the shop, by position. Made on first use; a clone has the same object.
    const std::shared_ptr<TextCollection>& Taxes() { return m_taxes.table(); }

    // How many ids of related products there are: the spare entry does not count.
    int relatedCount() const { return static_cast<int>(related.size()) - 1; }
    // Puts these ids, and the spare entry behind them, in the place of the related ones.
    void setRelatedIds(const QStringList& ids);

    // A product like this one, without id and without the size of its image. ShippingCosts and Taxes are the same
    // objects, deliberately: a change to one product's table shows on its clone.
    std::shared_ptr<ProductClass> CreateClone();

    // The element is a "Product" element; ToXML is given an empty one. An empty id takes the next one of the shop. The
    // caller adds the product to its category afterwards, under the id that was read. Both are the work of
    // model/shop_file.
    void FromXML(const pugi::xml_node& element, ShopClass& owner, const std::shared_ptr<CategoryClass>& parent,
                 ShopReading& reading);
    void ToXML(pugi::xml_node element, Unwritable unwritable = Unwritable::Raises);

    const ModelServices& services() const { return *m_services; }

private:
    friend std::shared_ptr<ProductClass> CopyProductForPreview(ProductClass& product);

    std::shared_ptr<ProductClass> wholeCopy();

    const ModelServices* m_services;
    std::shared_ptr<clsPrice> m_price;
    std::shared_ptr<clsSelectedImage> m_selectedImage;
    ProductTexts m_shippingCosts;
    ProductTexts m_taxes;
};

// The copy of a product that stands behind a line of the preview's cart: its price is a copy of its own, ShippingCosts,
// Taxes and selectedImage are the same objects, it has no category and is for sale.
std::shared_ptr<ProductClass> CopyProductForPreview(ProductClass& product);
