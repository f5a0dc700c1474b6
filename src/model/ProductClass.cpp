#include "model/ProductClass.h"

using namespace Qt::StringLiterals;

namespace {

// The one spare entry, shared by all products that have no related ones.
const QStringList& noRelated()
{
    static const QStringList list{QString()};
    return list;
}

} // namespace

ProductClass::ProductClass(const ModelServices& services)
    : ShippingStatus(u"Weight"_s), Weight(u"0"_s), related(noRelated()), m_services(&services)
{
}

const std::shared_ptr<clsPrice>& ProductClass::Price()
{
    if (!m_price) {
        m_price = std::make_shared<clsPrice>(m_services->clock);
        m_price->Discount()->Status = DiscountStatus::No;
    }
    return m_price;
}

const std::shared_ptr<clsSelectedImage>& ProductClass::selectedImage()
{
    if (!m_selectedImage) {
        m_selectedImage = std::make_shared<clsSelectedImage>(m_services->design);
    }
    return m_selectedImage;
}

const std::shared_ptr<TextCollection>& ProductClass::ShippingCosts()
{
    if (!m_shippingCosts) {
        m_shippingCosts = std::make_shared<TextCollection>();
    }
    return m_shippingCosts;
}

const std::shared_ptr<TextCollection>& ProductClass::Taxes()
{
    if (!m_taxes) {
        m_taxes = std::make_shared<TextCollection>();
    }
    return m_taxes;
}

void ProductClass::setRelatedIds(const QStringList& ids)
{
    related = ids.isEmpty() ? noRelated() : ids + noRelated();
}

std::shared_ptr<ProductClass> ProductClass::CreateClone()
{
    auto clone = std::make_shared<ProductClass>(*m_services);
    clone->shop = shop;
    clone->category = category;
    clone->name = name;
    clone->Description = Description;
    clone->Code = Code;
    clone->setPrice(Price()->CreateClone());
    clone->Unit = Unit;
    clone->LINK = LINK;
    clone->ForSale = ForSale;
    if (m_selectedImage) { // the size is not copied
        clone->selectedImage()->imageFileName = m_selectedImage->imageFileName;
        clone->selectedImage()->SelectionType = m_selectedImage->SelectionType;
        clone->selectedImage()->TextValue = m_selectedImage->TextValue;
    }
    clone->Picture = Picture;
    clone->ShippingStatus = ShippingStatus;
    clone->Weight = Weight;
    clone->setShippingCosts(ShippingCosts());
    clone->related = related;
    clone->setTaxes(Taxes());
    return clone;
}

std::shared_ptr<ProductClass> CopyProductForPreview(ProductClass& product)
{
    auto copy = std::make_shared<ProductClass>(product.services());
    copy->setPrice(product.Price()->CreateClone());
    copy->id = product.id;
    copy->Code = product.Code;
    copy->Description = product.Description;
    copy->LINK = product.LINK;
    copy->name = product.name;
    copy->Picture = product.Picture;
    copy->related = product.related;
    copy->setShippingCosts(product.ShippingCosts());
    copy->ShippingStatus = product.ShippingStatus;
    copy->shop = product.shop;
    copy->setTaxes(product.Taxes());
    copy->Unit = product.Unit;
    copy->Weight = product.Weight;
    copy->setSelectedImage(product.selectedImage());
    return copy;
}
