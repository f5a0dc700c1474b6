#include "CupShop.h"

#include "NoPrompts.h"
#include "base/Clock.h"
#include "base/Dates.h"
#include "base/FileBytes.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int productsOfCategory = 50;
constexpr int categoriesOfRoot = 10;

void addProduct(ShopSession& session, const std::shared_ptr<CategoryClass>& category, int number)
{
    const auto product = std::make_shared<ProductClass>(session.services);
    product->id = session.shop->getNextProductId();
    product->name = u"Espresso cup number %1, blue rim"_s.arg(number);
    product->Description =
        u"<p>Stoneware, fired twice, holds 80 ml and keeps them warm. Goes into the dishwasher. The rim "
        "is painted by hand, so that no two cups are quite alike; number %1 was made in the small kiln. "
        "<b>Fits the saucers</b> of the same series &amp; the tray. Please allow two to four days, and "
        "tell us when you need it for a f\u00EAte.</p>"_s.arg(number);
    product->Code = u"T-%1-BLUE"_s.arg(number);
    product->Price()->Value = QString::number(10 + number % 90);
    product->Unit = u"piece"_s;
    product->LINK = u"http://shop.example/cups/%1"_s.arg(number);
    product->selectedImage()->imageFileName = u"cup-%1.png"_s.arg(number % 500);
    product->selectedImage()->setWidthBmp(240);
    product->selectedImage()->setHeightBmp(180);
    product->Weight = u"310"_s;
    clsDiscount& discount = *product->Price()->Discount();
    discount.Status = number % 3 == 0 ? DiscountStatus::Specific : DiscountStatus::Inherit;
    discount.setSpecific(QString::number(number % 3 == 0 ? 5 : 0));
    if (number % 10 == 0) {
        discount.DateTo = DateTextToLocal(u"31.12.2099"_s);
    }
    if (number % 5 == 0) {
        for (const QString& size : {u"small"_s, u"large"_s}) {
            const auto variant = product->Price()->AddMultiPrice();
            variant->Description = size;
            variant->Value = QString::number(10 + number % 70);
        }
    }
    if (number % 4 == 0 && number % productsOfCategory >= 2) { // its two neighbours on the shelf
        const int id = product->id.toInt();
        product->setRelatedIds({QString::number(id - 1), QString::number(id - 2)});
    }
    for (const QString& type : *session.shop->ShippingTypeName) {
        product->ShippingCosts()->Add(QString::number(number % 7), type);
    }
    category->products.Add(product, nodeKey(product->id));
}

std::shared_ptr<CategoryClass> newCategory(ShopSession& session, int number)
{
    auto category = std::make_shared<CategoryClass>(session.services);
    category->id = session.shop->getNextProductId();
    category->name = u"Cups, shelf %1"_s.arg(number);
    category->Description = u"Cups of all kinds, from the small kiln and the large one."_s;
    category->Discount()->Status = DiscountStatus::Inherit;
    return category;
}

} // namespace

void fillShop(ShopSession& session, int products)
{
    session.shop = std::make_shared<ShopClass>(session.services);
    ShopClass& shop = *session.shop;
    shop.Version = u"1.2.0"_s;
    shop.name = u"The cup shop"_s;
    shop.Discount()->Status = DiscountStatus::ToAll;
    shop.Discount()->setApplyToWhole(u"10"_s);
    shop.SelectedCountries = std::make_shared<TextCollection>();
    shop.SelectedCountries->Add(u"Mali"_s, u"Mali"_s);
    shop.ShippingTypeName = std::make_shared<TextCollection>();
    shop.ShippingTypeDescription = std::make_shared<TextCollection>();
    for (const QString& type : {u"Parcel"_s, u"Express"_s}) {
        shop.ShippingTypeName->Add(type);
        shop.ShippingTypeDescription->Add(QString());
    }
    std::shared_ptr<CategoryClass> root;
    std::shared_ptr<CategoryClass> shelf;
    for (int number = 0; number < products; ++number) {
        if (number % (productsOfCategory * categoriesOfRoot) == 0) {
            root = newCategory(session, number);
            shop.categories.Add(root, nodeKey(root->id));
        }
        if (number % productsOfCategory == 0) {
            shelf = newCategory(session, number);
            root->categories.Add(shelf, nodeKey(shelf->id));
        }
        addProduct(session, shelf, number);
    }
}

void makeProgramFolder(const ApplicationFolder& folder)
{
    QDir().mkpath(folder.picturesFolder());
    QDir().mkpath(folder.templatesFolder());
    const QDir templates(QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates"));
    for (const QString& name : templates.entryList(QDir::Files)) {
        QFile::copy(templates.filePath(name), folder.templatesFolder() + name);
    }
    writeFileBytes(folder.countriesFile(), "Mali\n");
}

void makeShopFolder(const ApplicationFolder& folder, int products)
{
    makeProgramFolder(folder);
    NoPrompts prompts;
    const SystemClock clock;
    ShopSession session(folder, prompts, clock);
    fillShop(session, products);
    writeShopFile(session);
}
