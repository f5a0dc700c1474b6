#include "RandomShop.h"

#include "base/Dates.h"
#include "model/ObjectsCollection.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList& oddTexts()
{
    static const QStringList texts = {
        QString(),
        u" "_s,
        u"  \t "_s,
        u"\r\n"_s,
        u"\r"_s,
        u"plain"_s,
        u" blanks around "_s,
        u"one\r\ntwo\nthree\rfour"_s,
        u"<b>bold</b> &amp; &lt;"_s,
        u"&#13;&#0;"_s,
        u"]]>"_s,
        u"<![CDATA[x]]>"_s,
        u"<!-- no comment -->"_s,
        u"\"quoted\" 'too'"_s,
        u"\u00E4\u00F6\u00FC\u00DF \u0416 \u4E2D"_s,
        u"\U0001F375\U0010FFFD"_s,
        u"\uFEFFmark"_s,
        u"\u0085\u2028\uFFFD\u007F"_s,
        u"Yes"_s,
        u"No"_s,
        u"12,50"_s,
        u"12.50"_s,
        u"hueraga"_s,
        u"HUERAGA "_s,
        u"C:\\x/../y"_s,
        u"%1 %20 %"_s,
    };
    return texts;
}

} // namespace

QString RandomShop::text()
{
    QString result;
    for (int i = number(0, 2); i >= 0; --i) {
        result += oddTexts()[number(0, static_cast<int>(oddTexts().size()) - 1)];
    }
    return result == u"HUERAGA"_s ? QString() : result;
}

QString RandomShop::uniqueText()
{
    return text() + u"#%1"_s.arg(++m_unique);
}

QString RandomShop::decimal()
{
    return localised(u"%1.%2"_s.arg(number(0, 999)).arg(number(1, 99), 2, 10, QChar(u'0')));
}

// A 29 February does not come back, so there is none.
QString RandomShop::date()
{
    return chance(40) ? QString() : localDateText(QDate(number(1900, 5100), number(1, 12), number(1, 28)));
}

void RandomShop::fillDiscount(clsDiscount& discount, bool hasBands)
{
    discount.Status = number(1, 5);
    discount.DateFrom = date();
    discount.DateTo = date();
    if (!hasBands) {
        discount.setSpecific(decimal());
        return;
    }
    discount.setApplyToWhole(decimal());
    for (int i = number(0, 3); i > 0; --i) {
        discount.DependedDiscounts()->Add(decimal(), decimal(), decimal());
    }
}

void RandomShop::fillImage(clsSelectedImage& image)
{
    image.imageFileName = chance(50) ? QString() : u"picture %1.png"_s.arg(number(1, 99));
    if (!image.imageFileName.isEmpty() || chance(20)) {
        image.setWidthBmp(static_cast<qint16>(number(1, 32767)));
        image.setHeightBmp(static_cast<qint16>(number(1, 32767)));
    }
}

void RandomShop::fillProduct(ShopSession& session, ProductClass& product)
{
    product.shop = session.shop.get();
    product.name = text();
    product.Description = text();
    product.Code = text();
    product.Price()->Value = chance(70) ? decimal() : QString();
    product.ForSale = chance(50);
    product.Unit = text();
    product.LINK = text();
    fillImage(*product.selectedImage());
    fillDiscount(*product.Price()->Discount(), false);
    product.ShippingStatus = text();
    product.Weight = decimal();
    if (const auto types = session.shop->ShippingTypeName) {
        for (const QString& type : *types) {
            product.ShippingCosts()->Add(chance(80) ? decimal() : QString(), type);
        }
    }
    for (int i = number(0, 2); i > 0; --i) {
        const auto variant = product.Price()->AddMultiPrice();
        variant->Description = text();
        variant->Value = QString::number(number(0, 99)); // only what the plain scan gives back
    }
    QStringList ids;
    for (int i = number(0, 3); i > 0; --i) {
        ids.append(chance(80) ? QString::number(number(1, 99)) : text());
    }
    product.setRelatedIds(ids);
}

void RandomShop::fillCategory(ShopSession& session, const std::shared_ptr<CategoryClass>& category, int level)
{
    category->id = chance(90) ? QString::number(++m_id) : uniqueText();
    category->name = text();
    category->Description = text();
    fillImage(*category->selectedImage());
    fillDiscount(*category->Discount(), true);
    for (int i = level < 3 ? number(0, 2) : 0; i > 0; --i) {
        const auto child = std::make_shared<CategoryClass>(session.services);
        child->parentCategory = category;
        fillCategory(session, child, level + 1);
        category->Discount()->AddChildDiscount(child->Discount(), child->id);
        category->categories.Add(child, nodeKey(child->id));
    }
    for (int i = number(0, 3); i > 0; --i) {
        const auto product = std::make_shared<ProductClass>(session.services);
        product->id = chance(90) ? QString::number(++m_id) : uniqueText();
        product->category = category;
        fillProduct(session, *product);
        category->Discount()->AddChildDiscount(product->Price()->Discount(), product->id);
        category->products.Add(product, nodeKey(product->id));
    }
}

void RandomShop::fillTables(ShopClass& shop)
{
    const auto newTexts = [] { return std::make_shared<TextCollection>(); };
    shop.SelectedCountries = newTexts();
    for (int i = number(0, 4); i > 0; --i) {
        const QString country = uniqueText();
        shop.SelectedCountries->Add(country, country);
    }
    // A reader finds an empty list of types where the writer had none, so that there is always one.
    shop.ShippingTypeName = newTexts();
    shop.ShippingTypeDescription = newTexts();
    const int types = number(0, 3);
    for (int i = 0; i < types; ++i) {
        shop.ShippingTypeName->Add(uniqueText(), u"ship_name%1"_s.arg(i));
        shop.ShippingTypeDescription->Add(text(), u"ship_desc%1"_s.arg(i));
    }
    if (const int frames = number(0, 3); frames > 0) {
        shop.ShippingCostFrameFrom = newTexts();
        shop.ShippingCostFrameTo = newTexts();
        shop.ShippingCosts = std::make_shared<KeyedCollection<TextCollection>>();
        for (int frame = 0; frame < frames; ++frame) {
            shop.ShippingCostFrameFrom->Add(decimal(), u"from%1"_s.arg(frame));
            shop.ShippingCostFrameTo->Add(decimal(), u"to%1"_s.arg(frame));
            TextCollection costs;
            for (int i = 0; i < types; ++i) {
                costs.Add(decimal(), u"cost%1"_s.arg(i));
            }
            shop.ShippingCosts->Add(std::move(costs));
        }
    }
    for (int i = number(0, 3); i > 0; --i) {
        clsTax tax;
        tax.TaxName = text();
        tax.setPercent(decimal());
        tax.IsChecked = chance(50);
        shop.Taxes.Add(std::move(tax));
        clsCharge charge;
        charge.Destination = text();
        charge.Cost = decimal();
        charge.IsChecked = chance(50);
        shop.Charges.Add(std::move(charge));
    }
}

void RandomShop::fillDesign(ShopDesignClass& design)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        design.setOption(row.option, text());
    }
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        clsSelectedImage& image = *design.Image(static_cast<ImageSlot>(i));
        image.SelectionType = static_cast<ImageSelection>(number(0, 2));
        image.TextValue = text();
        if (image.SelectionType == ImageSelection::Image) {
            fillImage(image); // the size of any other slot is not read back
        }
    }
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        for (int names = number(0, 3); names > 0; --names) {
            design.Pages(static_cast<PageSelection>(i))->Add(uniqueText());
        }
    }
}

void RandomShop::fill(ShopSession& session)
{
    ShopClass& shop = *session.shop;
    shop.Version = u"1.2.0"_s;
    shop.ShippingChargesAreSelected = chance(50);
    shop.TaxesAreSelected = chance(50);
    shop.shop_currency = text();
    shop.MaxProductId = QString::number(number(1000, 2000));
    shop.name = text();
    shop.Description = text();
    fillDiscount(*shop.Discount(), true);
    fillTables(shop);
    for (int i = number(0, 3); i > 0; --i) {
        const auto category = std::make_shared<CategoryClass>(session.services);
        fillCategory(session, category, 1);
        shop.categories.Add(category, nodeKey(category->id));
        shop.Discount()->AddChildDiscount(category->Discount(), category->id);
    }
    for (int i = number(0, 3); i > 0; --i) {
        const auto style = std::make_shared<CSSClass>();
        style->CSSName = uniqueText();
        for (QString* member : {&style->FontName, &style->FontSize, &style->IsBold, &style->IsCursive,
                                &style->IsUndcelined, &style->IsLineThrugh}) {
            *member = text();
        }
        shop.CSSs.Add(style, nodeKey(style->CSSName));
        const auto page = std::make_shared<CustomPageClass>();
        page->pageName = uniqueText();
        page->ImageName = text();
        page->ImageAligment = text();
        page->ContentText = text();
        shop.CustomPages.Add(page, page->pageName);
    }
    fillDesign(*shop.ShopDesign);
    shop.Discount()->SendDiscountToChilds(shop.Discount()->DateFrom, shop.Discount()->DateTo);
}
