#include "model/ShopClass.h"

#include "base/RuntimeError.h"
#include "base/WholeNumbers.h"
#include "model/CatalogueImport.h"

#include <limits>

using namespace Qt::StringLiterals;

ShopClass& currentShop(const ModelServices& services)
{
    if (!services.shop) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *services.shop;
}

ShopClass::ShopClass(const ModelServices& services)
    : MaxProductId(u"1"_s), m_services(&services), m_discount(std::make_shared<clsDiscount>(services.clock))
{
    m_discount->Status = DiscountStatus::No;
    ShopDesign = std::make_shared<ShopDesignClass>(services.design);
    services.design.log.WriteLoadLog(u"Shop class Initialized"_s);
}

QString ShopClass::getNextProductId()
{
    const qint32 highest = int32FromText(MaxProductId);
    if (highest == std::numeric_limits<qint32>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    MaxProductId = QString::number(highest + 1);
    return MaxProductId;
}

qint32 ShopClass::GetProductCount() const
{
    qint64 count = 0;
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        count += category->GetProductCount();
    }
    if (count > std::numeric_limits<qint32>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<qint32>(count);
}

void ShopClass::ImportCategory(QStringList& fields)
{
    CatalogueImport(*this).addProduct(fields);
}
