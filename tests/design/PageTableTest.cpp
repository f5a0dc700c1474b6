// The tables of pages and of image slots: the orders that a shop's files and its server are used to, and rows that
// agree with one another.
#include "design/PageTable.h"

#include "design/ImageSlots.h"
#include "support/TestSupport.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList names(PageKind kind)
{
    QStringList found;
    for (const PageRow& row : pageTable()) {
        if (row.kind == kind) {
            found << row.name;
        }
    }
    return found;
}

TEST(PageTable, TellsWhatKindOfPageEachIs)
{
    EXPECT_EQ(names(PageKind::Frame), QStringList{u"layout"_s});
    EXPECT_EQ(names(PageKind::Page),
              (QStringList{u"cart"_s, u"category"_s, u"custompage"_s, u"main"_s, u"product"_s, u"search"_s}));
    EXPECT_EQ(names(PageKind::Piece), (QStringList{u"footer"_s, u"header"_s, u"menu"_s, u"checkout"_s}));
    EXPECT_EQ(names(PageKind::OnlySent), (QStringList{u"buying"_s, u"payed_cancel"_s, u"payed_ok"_s}));
}

TEST(PageTable, HasTheOrdersOfReadingOfComposingAndOfCheckingAVersion)
{
    EXPECT_EQ(pageNamesBy(&PageRow::reading),
              (QStringList{u"main"_s, u"footer"_s, u"menu"_s, u"category"_s, u"product"_s, u"search"_s, u"cart"_s,
                           u"header"_s, u"custompage"_s, u"checkout"_s}));
    EXPECT_EQ(pageNamesBy(&PageRow::composing), (QStringList{u"menu"_s, u"footer"_s, u"header"_s, u"checkout"_s}));
    EXPECT_EQ(pageNamesBy(&PageRow::checking),
              (QStringList{u"header"_s, u"footer"_s, u"menu"_s, u"main"_s, u"product"_s, u"category"_s, u"cart"_s,
                           u"search"_s, u"buying"_s, u"checkout"_s, u"custompage"_s, u"layout"_s}));
}

TEST(PageTable, HasNoPlaceTwiceAndNoGapInAnOrder)
{
    for (int PageRow::*order : {&PageRow::reading, &PageRow::composing, &PageRow::checking}) {
        std::vector<int> places;
        for (const PageRow& row : pageTable()) {
            if (row.*order != 0) {
                places.push_back(row.*order);
            }
        }
        std::sort(places.begin(), places.end());
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_EQ(places[i], static_cast<int>(i) + 1);
        }
    }
}

TEST(PageTable, HasARowForEachPageAtItsNumber)
{
    for (std::size_t i = 0; i < pageTable().size(); ++i) {
        const PageRow& row = pageTable()[i];
        EXPECT_EQ(row.page, static_cast<ShopPage>(i));
        EXPECT_EQ(&rowOf(row.page), &row);
        EXPECT_EQ(nameOf(row.page), row.name);
    }
}

TEST(PageTable, ReadsWhatIsRenderedAndComposesThePieces)
{
    for (const PageRow& row : pageTable()) {
        SCOPED_TRACE(row.name.data());
        EXPECT_EQ(row.reading != 0, row.kind == PageKind::Page || row.kind == PageKind::Piece);
        EXPECT_EQ(row.composing != 0, row.kind == PageKind::Piece);
    }
}

TEST(PageTable, GivesEachAdvancedOptionToOnePageOfThoseThatAreRead)
{
    for (const DesignOptionRow& option : designOptionTable()) {
        const auto isItsPage = [&](const PageRow& row) { return row.advanced == option.option; };
        EXPECT_EQ(std::count_if(pageTable().begin(), pageTable().end(), isItsPage),
                  option.name.endsWith(u"_Advanced") ? 1 : 0)
            << option.element;
    }
    for (const PageRow& row : pageTable()) {
        EXPECT_EQ(row.advanced.has_value(), row.reading != 0) << row.name.data();
    }
}

TEST(ImageSlotTable, HasARowForEachSlotAtItsNumberAndAPlaceOfSendingForEach)
{
    ASSERT_EQ(imageSlotTable().size(), ImageSlotCount);
    std::vector<int> places;
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        const ImageSlotRow& row = imageSlotTable()[i];
        EXPECT_EQ(row.slot, static_cast<ImageSlot>(i));
        EXPECT_EQ(tagOf(row.slot), row.tag);
        places.push_back(row.sending);
    }
    std::sort(places.begin(), places.end());
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(places[i], static_cast<int>(i) + 1);
    }
}

} // namespace
