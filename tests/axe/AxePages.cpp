// Every page of the sample shop in the real browser, wide and narrow, judged by axe-core. The checker's one script
// comes from the environment variable TARNWICK_AXE, the path of a file; axe.sh at the top gets it and starts this
// program.
#include "design/DesignOptions.h"
#include "design/clsSelectedImage.h"
#include "e2e/BrowserTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

// What is reported of a page: the rule, how grave it is, what it says, and where.
const QString Judging =
    u"window.axeFindings = null;"
    "axe.run(document, {resultTypes: ['violations']}).then(function(results) {"
    "  const places = nodes => nodes.map(n => n.target.join(' ') + ' ' + (n.failureSummary || ''));"
    "  window.axeFindings = JSON.stringify({rules: results.passes.length + results.violations.length,"
    "    violations: results.violations.map(v => ({id: v.id + ' (' + v.impact + '): ' + v.help,"
    "    places: places(v.nodes)}))});"
    "}).catch(function(error) {"
    "  window.axeFindings = JSON.stringify({rules: 0, violations: [{id: String(error), places: []}]});"
    "}); 0"_s;

struct Width
{
    const char* name;
    int pixels;
};

class AxePages : public BrowserTest, public testing::WithParamInterface<Width>
{
protected:
    AxePages() : m_axe(QString::fromUtf8(fileBytes(qEnvironmentVariable("TARNWICK_AXE"))))
    {
        openSampleShop();
        browser->resize(GetParam().pixels, 900);
        waitUntil(u"window.innerWidth == %1"_s.arg(GetParam().pixels));
    }

    void judge(const QString& query)
    {
        markPage();
        navigation->act(u"http://previewmode/"_s + query);
        waitForNewPage();
        judgeAsItIs(query);
    }
    void judgeAsItIs(const QString& query)
    {
        ++m_pages;
        for (const QString& violation : violations()) {
            ++m_violations;
            ADD_FAILURE() << query.toStdString() << ": " << violation.toStdString();
        }
    }
    // Of the page that is shown: the rule, and the places one below the other.
    QStringList violations()
    {
        script(m_axe + u"; 0"_s);
        script(Judging);
        waitUntil(u"window.axeFindings !== null"_s);
        const QJsonObject found = QJsonDocument::fromJson(script(u"window.axeFindings"_s).toString().toUtf8()).object();
        EXPECT_GT(found[u"rules"].toInt(), 20) << "axe-core did not look at the page";
        const QJsonArray broken = found[u"violations"].toArray();
        QStringList texts;
        for (const QJsonValueConstRef violation : broken) {
            QString text = violation[u"id"].toString();
            const QJsonArray places = violation[u"places"].toArray();
            for (const QJsonValueConstRef place : places) {
                text += u"\n    "_s + place.toString().simplified();
            }
            texts << text;
        }
        return texts;
    }

    void judgeEveryPage()
    {
        judge(u"ACTION=shopcart.php"_s);
        judge(u"MAINPAGE"_s);
        judge(u"?ACTION=search.php&where=0&what=a"_s);
        judge(u"?ACTION=search.php&where=0&what=marzipan"_s);
        for (const CatalogueObject& object : session->objects.items()) {
            if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
                judge(u"ACTION=category.php&id="_s + (*category)->id);
            }
            if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
                judge(u"ACTION=product.php&id="_s + (*product)->id);
            }
        }
        for (const auto& page : session->shop->CustomPages) {
            judge(u"ACTION=custompage.php&name="_s + page->pageName);
        }
        judge(u"?addtoshopcart=&product_id=23&quantity=2&price=18"_s);
        judge(u"?addtoshopcart=&product_id=20&quantity=1&price=76"_s);
        judge(u"MAINPAGE"_s); // with a full cart in the menu
        if (countOf(u".menu-label"_s) == 1) {
            script(u"document.querySelector('.menu-switch').click()"_s);
            judgeAsItIs(u"MAINPAGE with its menu open"_s);
        }
        judge(u"?ACTION=checkout.php"_s);
        judge(u"?recalculate=1&tax=19&charge=5&ACTION=checkout.php"_s);
        std::cout << m_pages << " pages at " << GetParam().pixels << " pixels: " << m_violations << " violations\n";
    }

private:
    QString m_axe;
    int m_pages = 0;
    int m_violations = 0;
};

INSTANTIATE_TEST_SUITE_P(Width, AxePages, testing::Values(Width{"wide", 1200}, Width{"narrow", 390}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(AxePages, OfTheSampleShopHaveNoViolation)
{
    judgeEveryPage();
}

TEST_P(AxePages, WithTheOtherKindOfEveryButtonHaveNoViolation)
{
    for (std::size_t slot = 0; slot < ImageSlotCount; ++slot) {
        clsSelectedImage& image = *session->shop->ShopDesign->Image(static_cast<ImageSlot>(slot));
        const bool isImage = image.SelectionType == ImageSelection::Image;
        image.SelectionType = isImage ? ImageSelection::Text : ImageSelection::Image;
    }
    judgeEveryPage();
}

TEST_P(AxePages, OfAProductThatLacksTextsAndPricesHaveNoViolation)
{
    ShopDesignClass& design = *session->shop->ShopDesign;
    for (const DesignOption text : {DesignOption::Main_PageHeader, DesignOption::CartPage_PageHeader,
                                    DesignOption::SearchPage_PageHeader, DesignOption::BuyingForm_PageHeaderText,
                                    DesignOption::Category_PageHeader, DesignOption::Footer_CopyrightText}) {
        design.setOption(text, QString());
    }
    design.setOption(DesignOption::ProductPage_IncludeName, u"No"_s);
    ProductClass& mug = *session->objects.Product(u"23"_s);
    mug.Description.clear();
    mug.Price()->Discount()->Status = DiscountStatus::No; // one by bands of prices needs a price
    mug.Price()->GetMultiPrice(1)->Value.clear();
    for (const bool isForSale : {true, false}) {
        mug.ForSale = isForSale;
        judge(u"ACTION=product.php&id=23"_s);
        judge(u"ACTION=category.php&id="_s + mug.category.lock()->id);
        judge(u"?ACTION=search.php&where=0&what="_s + mug.name);
    }
    for (const QString& page : {u"MAINPAGE"_s, u"ACTION=shopcart.php"_s, u"?ACTION=checkout.php"_s}) {
        judge(page);
    }
}

// The checker sees what is wrong.
TEST_P(AxePages, WithALabelTakenAwayAreFoundOut)
{
    markPage();
    navigation->act(u"http://previewmode/?ACTION=checkout.php"_s);
    waitForNewPage();
    script(u"document.querySelector('[name=customer_name]').parentElement.querySelector('span').remove()"_s);
    EXPECT_FALSE(violations().filter(u"label (critical)"_s).isEmpty());
}

} // namespace
