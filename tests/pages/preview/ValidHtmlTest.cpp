// The pages of the sample shop as HTML: each is rendered as the preview shows it, and a checker of HTML reads it.
#include "SamplePages.h"
#include "design/DesignOptions.h"
#include "design/clsSelectedImage.h"

#include <QProcess>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds for the checker

class ValidHtmlTest : public SamplePages
{
protected:
    // What the checker says of the pages, each line behind the address of its page; lines with one of these texts in
    // them are left out.
    QStringList complaints(const QList<SamplePage>& pages, const QStringList& meant = {})
    {
        QStringList names;
        for (const SamplePage& page : pages) {
            names << u"page%1.html"_s.arg(names.size());
            writeFile(files.path(names.last()), page.document.toUtf8());
        }
        QProcess tidy;
        tidy.setWorkingDirectory(files.path(u"."_s));
        tidy.start(u"tidy"_s, QStringList{u"-errors"_s, u"-quiet"_s, u"-utf8"_s, u"--gnu-emacs"_s, u"yes"_s} + names);
        if (!tidy.waitForFinished(patience)) {
            ADD_FAILURE() << "tidy does not run: " << tidy.errorString().toStdString();
            return {};
        }
        QStringList found;
        for (const QString& line : QString::fromUtf8(tidy.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts)) {
            const bool isMeant =
                std::any_of(meant.begin(), meant.end(), [&](const QString& text) { return line.contains(text); });
            if (!isMeant) {
                const qsizetype end = line.indexOf(u".html");
                found << pages.value(line.mid(4, end - 4).toInt()).query + line.mid(end + 5);
            }
        }
        return found;
    }

    // A piece of a page that is switched off leaves the element around it, which takes no room.
    const QStringList emptyPieces{u"Warning: trimming empty <"_s};
};

TEST_F(ValidHtmlTest, EveryPageOfTheSampleShopIsFreeOfMistakesAndWarnings)
{
    EXPECT_EQ(complaints(everyPage()), QStringList());
}

TEST_F(ValidHtmlTest, PagesThatShowAllTheyCanAreFreeOfMistakes)
{
    setEverySwitch(u"Yes"_s);
    EXPECT_EQ(complaints(everyPage()), QStringList());
}

TEST_F(ValidHtmlTest, PagesThatShowTheLeastAreFreeOfMistakes)
{
    setEverySwitch(u"No"_s);
    EXPECT_EQ(complaints(everyPage(), emptyPieces), QStringList());
}

TEST_F(ValidHtmlTest, PagesWithTextsInThePlaceOfPicturesAreFreeOfMistakes)
{
    setEverySlot(ImageSelection::Text);
    EXPECT_EQ(complaints(everyPage()), QStringList());
}

TEST_F(ValidHtmlTest, PagesWithPicturesOnAllButtonsAreFreeOfMistakes)
{
    setEverySlot(ImageSelection::Image);
    EXPECT_EQ(complaints(everyPage()), QStringList());
}

TEST_F(ValidHtmlTest, QuotesInNamesAndTextsBreakNoPage)
{
    const QString quoted = u"The \"big\" one's"_s;
    for (const CatalogueObject& object : session.objects.items()) {
        if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
            (*category)->name = quoted;
        } else if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            (*product)->name = quoted;
        }
    }
    for (std::size_t slot = 0; slot < ImageSlotCount; ++slot) {
        design().Image(static_cast<ImageSlot>(slot))->TextValue = quoted;
    }
    for (const ImageSelection type : {ImageSelection::Image, ImageSelection::Text}) {
        setEverySlot(type);
        setEverySwitch(u"Yes"_s);
        EXPECT_EQ(complaints(everyPage()), QStringList());
    }
}

TEST_F(ValidHtmlTest, PagesOfAShopThatLacksTextsAndPricesAreFreeOfMistakes)
{
    setEverySwitch(u"Yes"_s);
    for (const DesignOptionRow& row : designOptionTable()) {
        if (row.name.endsWith(u"PageHeader") && design().Option(row.option) != "Yes"_L1) {
            design().setOption(row.option, QString());
        }
    }
    for (const DesignOption text : {DesignOption::BuyingForm_PageHeaderText, DesignOption::Footer_CopyrightText}) {
        design().setOption(text, QString());
    }
    for (const CatalogueObject& object : session.objects.items()) {
        if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
            (*category)->Description.clear();
        } else if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            clsPrice& price = *(*product)->Price();
            (*product)->Description.clear();
            price.Discount()->Status = DiscountStatus::No; // one by bands of prices needs a price
            price.Value.clear();
            if (price.MultiPriceCount() > 0) {
                price.GetMultiPrice(1)->Value.clear();
            }
        }
    }
    EXPECT_EQ(complaints(everyPage()), QStringList());
}

TEST_F(ValidHtmlTest, AMistakeInATemplateIsFound)
{
    const QString cart = files.path(u"templates/cart.html"_s);
    writeFile(cart, fileBytes(cart).replace("</h1>", ""));
    templates.parseTemplates();
    const SamplePage full = page(u"?addtoshopcart=&product_id=20&quantity=1&price=76"_s);
    EXPECT_FALSE(complaints({full}).filter(u"missing </h1>"_s).isEmpty());
}

} // namespace
