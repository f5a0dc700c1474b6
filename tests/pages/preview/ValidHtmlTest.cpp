// The pages of the sample shop as HTML: each is rendered as the preview shows it, and a checker of HTML reads it.
#include "design/DesignOptions.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewPage.h"
#include "support/TestSupport.h"
#include "template_engine/Templates_Set.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds for the checker

// What the checker says of good pages.
constexpr std::array meant = {
    // The names of custom pages stand in addresses as they are, blanks and all; the browser escapes them.
    "Warning: <a> illegal characters found in URI",
    "Warning: <a> escaping malformed URI reference",
    // A piece of a page that is switched off leaves the element around it, which takes no room.
    "Warning: trimming empty <",
    // A list box may have it since HTML 5, which this version of the checker does not know.
    "Warning: <select> proprietary attribute \"autocomplete\"",
};

bool isMeant(const QString& line)
{
    return std::any_of(meant.begin(), meant.end(),
                       [&](const char* text) { return line.contains(QLatin1String(text)); });
}

class KeepingSurface : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        document = text;
        return true;
    }
    void goBlank() override {}

    QString document;
};

class ValidHtmlTest : public testing::Test
{
protected:
    ValidHtmlTest()
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

    ShopDesignClass& design() { return *session.shop->ShopDesign; }

    void setEverySwitch(const QString& word)
    {
        for (const DesignOptionRow& row : designOptionTable()) {
            if (design().Option(row.option) == "Yes"_L1 || design().Option(row.option) == "No"_L1) {
                design().setOption(row.option, word);
            }
        }
    }

    void keepPage(const QString& query)
    {
        navigation.act(u"http://previewmode/"_s + query);
        const QString name = u"page%1.html"_s.arg(m_pages.size());
        WriteFile(files.path(name), surface.document.toUtf8());
        m_pages << name;
        m_queries << query;
    }
    void keepEveryPage()
    {
        keepPage(u"ACTION=shopcart.php"_s);
        keepPage(u"MAINPAGE"_s);
        keepPage(u"?ACTION=search.php&where=0&what=a"_s);
        keepPage(u"?ACTION=search.php&where=0&what=marzipan"_s);
        for (const CatalogueObject& object : session.objects.items()) {
            if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
                keepPage(u"ACTION=category.php&id="_s + (*category)->id);
            }
            if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
                keepPage(u"ACTION=product.php&id="_s + (*product)->id);
            }
        }
        for (const auto& page : session.shop->CustomPages) {
            keepPage(u"ACTION=custompage.php&name="_s + page->pageName);
        }
        keepPage(u"?addtoshopcart=&product_id=23&quantity=2&price=18"_s); // one of several prices
        keepPage(u"?addtoshopcart=&product_id=20&quantity=1&price=76"_s);
        keepPage(u"?ACTION=checkout.php"_s);
        keepPage(u"?recalculate=1&tax=19&charge=5&ACTION=checkout.php"_s);
    }

    // What the checker has to say of the pages that were kept, by their addresses.
    QStringList complaints()
    {
        QProcess tidy;
        tidy.setWorkingDirectory(files.path(u"."_s));
        tidy.start(u"tidy"_s, QStringList{u"-errors"_s, u"-quiet"_s, u"-utf8"_s, u"--gnu-emacs"_s, u"yes"_s} + m_pages);
        if (!tidy.waitForFinished(patience)) {
            ADD_FAILURE() << "tidy does not run: " << tidy.errorString().toStdString();
            return {};
        }
        QStringList found;
        for (const QString& line : QString::fromUtf8(tidy.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts)) {
            if (!isMeant(line)) {
                const qsizetype end = line.indexOf(u".html");
                found << m_queries.value(line.mid(4, end - 4).toInt()) + line.mid(end + 5);
            }
        }
        return found;
    }

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2026, 7, 15)};
    ShopSession session{files.folder(), prompts, clock};
    Templates_Set templates{session.folder, session.log, shopTemplateNames()};
    KeepingSurface surface;
    PreviewPage preview{session, templates, surface};
    PreviewNavigation navigation{session, preview};

private:
    QStringList m_pages;
    QStringList m_queries;
};

TEST_F(ValidHtmlTest, EveryPageOfTheSampleShopIsFreeOfMistakes)
{
    keepEveryPage();
    EXPECT_EQ(complaints(), QStringList());
}

TEST_F(ValidHtmlTest, PagesThatShowAllTheyCanAreFreeOfMistakes)
{
    setEverySwitch(u"Yes"_s);
    keepEveryPage();
    EXPECT_EQ(complaints(), QStringList());
}

TEST_F(ValidHtmlTest, PagesThatShowTheLeastAreFreeOfMistakes)
{
    setEverySwitch(u"No"_s);
    keepEveryPage();
    EXPECT_EQ(complaints(), QStringList());
}

TEST_F(ValidHtmlTest, PagesWithTextsInThePlaceOfPicturesAreFreeOfMistakes)
{
    for (std::size_t slot = 0; slot < ImageSlotCount; ++slot) {
        clsSelectedImage& image = *design().Image(static_cast<ImageSlot>(slot));
        image.SelectionType = ImageSelection::Text;
        image.TextValue = u"Words"_s;
    }
    keepEveryPage();
    EXPECT_EQ(complaints(), QStringList());
}

TEST_F(ValidHtmlTest, AMistakeInATemplateIsFound)
{
    const QString page = files.path(u"templates/cart.html"_s);
    WriteFile(page, fileBytes(page).replace("</h1>", ""));
    templates.parseTemplates();
    keepPage(u"?addtoshopcart=&product_id=20&quantity=1&price=76"_s);
    EXPECT_FALSE(complaints().filter(u"missing </h1>"_s).isEmpty());
}

} // namespace
