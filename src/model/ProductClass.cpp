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

void ProductClass::setRelatedIds(const QStringList& ids)
{
    related = ids.isEmpty() ? noRelated() : ids + noRelated();
}

// A copy of all members with a price of its own. The tables are made first, so that both have the same ones.
std::shared_ptr<ProductClass> ProductClass::wholeCopy()
{
    ShippingCosts();
    Taxes();
    auto copy = std::make_shared<ProductClass>(*this);
    copy->setPrice(Price()->CreateClone());
    copy->QuantityInCart = 0;
    return copy;
}

std::shared_ptr<ProductClass> ProductClass::CreateClone()
{
    std::shared_ptr<ProductClass> clone = wholeCopy();
    clone->id.clear();
    if (m_selectedImage) {
        clone->m_selectedImage = std::make_shared<clsSelectedImage>(*m_selectedImage);
        clone->m_selectedImage->setWidthBmp(0); // the clone may get another picture: its size is asked for anew
        clone->m_selectedImage->setHeightBmp(0);
    }
    return clone;
}

std::shared_ptr<ProductClass> CopyProductForPreview(ProductClass& product)
{
    product.selectedImage();
    std::shared_ptr<ProductClass> copy = product.wholeCopy();
    copy->category.reset();
    copy->ForSale = true;
    return copy;
}
