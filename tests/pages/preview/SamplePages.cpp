#include "SamplePages.h"

#include "design/DesignOptions.h"
#include "design/clsSelectedImage.h"
#include "model/shop_file/ShopFile.h"

#include <QDirIterator>
#include <QFile>

using namespace Qt::StringLiterals;

SamplePages::SamplePages()
{
    const QString sample = QStringLiteral(TARNWICK_SOURCE_DIR "/app/");
    QDirIterator entries(sample, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        EXPECT_TRUE(QFile::copy(file, files.path(file.mid(sample.size())))) << file.toStdString();
    }
    EXPECT_TRUE(loadShop(session));
    session.Cart = std::make_unique<clsCart>(session.services);
    session.registerShop();
    templates.parseTemplates();
}

void SamplePages::setEverySwitch(const QString& word)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        if (design().Option(row.option) == "Yes"_L1 || design().Option(row.option) == "No"_L1) {
            design().setOption(row.option, word);
        }
    }
}

void SamplePages::setEverySlot(ImageSelection type)
{
    for (std::size_t slot = 0; slot < ImageSlotCount; ++slot) {
        design().Image(static_cast<ImageSlot>(slot))->SelectionType = type;
    }
}

SamplePage SamplePages::page(const QString& query)
{
    navigation.act(u"http://previewmode/"_s + query);
    return {query, surface.document};
}

QList<SamplePage> SamplePages::everyPage()
{
    QStringList queries = {u"ACTION=shopcart.php"_s, u"MAINPAGE"_s, u"?ACTION=search.php&where=0&what=a"_s,
                           u"?ACTION=search.php&where=0&what=marzipan"_s};
    for (const CatalogueObject& object : session.objects.items()) {
        if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
            queries << u"ACTION=category.php&id="_s + (*category)->id;
        }
        if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            queries << u"ACTION=product.php&id="_s + (*product)->id;
        }
    }
    for (const auto& custom : session.shop->CustomPages) {
        queries << u"ACTION=custompage.php&name="_s + custom->pageName;
    }
    queries << u"?addtoshopcart=&product_id=23&quantity=2&price=18"_s // one of several prices
            << u"?addtoshopcart=&product_id=20&quantity=1&price=76"_s
            << u"ACTION=category.php&id="_s + session.shop->categories.Item(1)->id // with a full cart in the menu
            << u"?ACTION=checkout.php"_s << u"?recalculate=1&tax=19&charge=5&ACTION=checkout.php"_s;
    QList<SamplePage> pages;
    for (const QString& query : std::as_const(queries)) {
        pages << page(query);
    }
    session.Cart->Clear();
    return pages;
}
