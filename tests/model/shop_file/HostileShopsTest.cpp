// Small files that ask for much: they are read in the time and the memory of an honest file, with the result that the
// rules of look-up give, or end in the error for what no memory holds.
#include "data/HostileShops.h"

#include "model/ShopFixture.h"
#include "model/clsImporter.h"

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

#ifdef TARNWICK_SANITIZED
constexpr bool isSanitized = true; // the sanitizer's own notes count as memory, too
#else
constexpr bool isSanitized = false;
#endif

double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// What the process has in memory, in bytes: now ("VmRSS:"), or at most since the peak was set back ("VmHWM:").
qint64 memory(const char* which)
{
    const QByteArray status = fileBytes(u"/proc/self/status"_s);
    const qsizetype at = status.indexOf(which) + static_cast<qsizetype>(std::strlen(which));
    return status.mid(at, status.indexOf("kB", at) - at).trimmed().toLongLong() * 1024;
}

class HostileShops : public ShopFixture
{
protected:
    // Reads or imports the input; the number of the error, else 0.
    int take(const HostileInput& input, const QByteArray& bytes)
    {
        if (!input.isImport) {
            return load(bytes);
        }
        load(shopFile(""));
        session.registerShop();
        const QString path = session.folder.path() + u"/import.txt"_s;
        writeFile(path, bytes);
        return errorOf([&] { clsImporter(session).Import(path); });
    }
};

class EachHostileInput : public HostileShops, public testing::WithParamInterface<HostileInput>
{
};

TEST_P(EachHostileInput, TakesNoMoreTimeAndMemoryThanAnHonestFile)
{
    const QByteArray bytes = GetParam().make(GetParam().size);
    writeFile(u"/proc/self/clear_refs"_s, "5"); // the peak counts from here
    const qint64 before = memory("VmRSS:");
    const double start = processorSeconds();
    EXPECT_EQ(take(GetParam(), bytes), 0);
    EXPECT_LT(processorSeconds() - start, 10); // a tenth of a second is usual; it was up to a minute
    const qint64 taken = memory("VmHWM:") - before;
    if (!isSanitized) {
        EXPECT_LT(taken, 10 * bytes.size() + 100'000'000);
    }
}

INSTANTIATE_TEST_SUITE_P(HostileShops, EachHostileInput, testing::ValuesIn(hostileInputs()), [](const auto& row) {
    QByteArray name(row.param.name);
    return name.replace(' ', '_').replace(',', "").toStdString();
});

// The input of that name in a small size.
QByteArray small(const char* name, int size)
{
    for (const HostileInput& input : hostileInputs()) {
        if (QByteArrayView(input.name) == name) {
            return input.make(size);
        }
    }
    ADD_FAILURE() << name;
    return {};
}

TEST_F(HostileShops, EveryNestedRowFindsTheFirstTextBelowIt)
{
    ASSERT_EQ(load(small("nested taxes", 3)), 0);
    ASSERT_EQ(session.shop->Taxes.Count(), 3);
    for (const clsTax& tax : session.shop->Taxes) {
        EXPECT_EQ(tax.TaxName, u"T"_s);
        EXPECT_FALSE(tax.IsChecked);
    }
    ASSERT_EQ(load(small("nested charges", 3)), 0);
    EXPECT_EQ(session.shop->Charges.Count(), 3);
    ASSERT_EQ(load(small("nested frames of costs", 3)), 0);
    ASSERT_EQ(session.shop->ShippingCosts->Count(), 3);
    for (const TextCollection& costs : *session.shop->ShippingCosts) {
        EXPECT_EQ(costs.Count(), 3);
        EXPECT_EQ(costs.Item(u"cost1"_s), u"5"_s);
        EXPECT_EQ(costs.Item(u"cost2"_s), QString());
    }
    ASSERT_EQ(load(small("nested variants of a price", 3)), 0);
    ASSERT_EQ(firstProduct()->Price()->MultiPriceCount(), 3);
    EXPECT_EQ(firstProduct()->Price()->GetMultiPrice(3)->Value, u"7"_s);
    ASSERT_EQ(load(small("nested bands of a discount", 3)), 0);
    ASSERT_EQ(session.shop->Discount()->DependedDiscounts()->Count(), 3);
    EXPECT_EQ(session.shop->Discount()->DependedDiscounts()->Item(1).PriceTo(), u"9"_s);
}

TEST_F(HostileShops, ARowInARowHasItsOwnTextAndTheOuterOneTheFirst)
{
    ASSERT_EQ(load(shopFile("<Taxes><Type><Percent>1</Percent><Type><Name>in</Name><Percent>2</Percent></Type>"
                            "<Name>out</Name></Type><Type><Used>Y</Used></Type></Taxes>")),
              0);
    ASSERT_EQ(session.shop->Taxes.Count(), 3);
    EXPECT_EQ(session.shop->Taxes.Item(1).TaxName, u"in"_s);
    EXPECT_EQ(session.shop->Taxes.Item(1).Percent(), u"1"_s);
    EXPECT_EQ(session.shop->Taxes.Item(2).TaxName, u"in"_s);
    EXPECT_EQ(session.shop->Taxes.Item(2).Percent(), u"2"_s);
    EXPECT_EQ(session.shop->Taxes.Item(3).TaxName, QString());
    EXPECT_TRUE(session.shop->Taxes.Item(3).IsChecked);
}

TEST_F(HostileShops, ACategoryTakesTheTextsAndTheDiscountOfTheFirstBelowThatHasThem)
{
    ASSERT_EQ(load(shopFile("<Category><Id>2</Id><Category><Id>3</Id><Width>7</Width></Category>"
                            "<Category><Id>4</Id><Name>N</Name><Discount><Status>Depend</Status>"
                            "<PriceFrame><To>9</To></PriceFrame></Discount>"
                            "<Product><Id>5</Id><Description>D</Description><Related/></Product></Category>"
                            "</Category>")),
              0);
    const auto category = rootCategory();
    EXPECT_EQ(category->name, u"N"_s);
    EXPECT_EQ(category->Description, u"D"_s);
    EXPECT_EQ(category->selectedImage()->cachedSize().width, 7);
    EXPECT_EQ(category->Discount()->Status, DiscountStatus::Depend);
    EXPECT_EQ(category->Discount()->DependedDiscounts()->Item(1).PriceTo(), u"9"_s);
    const auto first = category->categories.Item(1);
    EXPECT_EQ(first->name, u"UNDEFINED_PRODUCT_NAME"_s);
    EXPECT_EQ(first->Discount()->Status, DiscountStatus::No);
    const auto second = category->categories.Item(2);
    EXPECT_EQ(second->name, u"N"_s);
    EXPECT_EQ(second->Description, u"D"_s);
    EXPECT_EQ(second->Discount()->DependedDiscounts()->Count(), 1);
    EXPECT_NE(second->Discount()->DependedDiscounts(), category->Discount()->DependedDiscounts());
    EXPECT_EQ(second->products.Item(1)->Description, u"D"_s);
}

TEST_F(HostileShops, AProductsTablesHaveARowForEachOfTheShops)
{
    ASSERT_EQ(load(small("1,000 shipping types times products", 2)), 0);
    TextCollection& costs = *firstProduct()->ShippingCosts();
    EXPECT_EQ(costs.Count(), 1000);
    EXPECT_EQ(costs.Item(u"1"_s), u"5"_s);
    EXPECT_EQ(costs.Item(u"999"_s), QString());
    costs.Item(u"999"_s) = u"8"_s; // none of the other product's
    EXPECT_EQ(rootCategory()->products.Item(2)->ShippingCosts()->Item(u"999"_s), QString());
    ASSERT_EQ(load(small("taxes times products", 3)), 0);
    QStringList taxes;
    for (const QString& tax : *firstProduct()->Taxes()) {
        taxes.append(tax);
    }
    EXPECT_EQ(taxes, (QStringList{u"N"_s, u"Y"_s, u"N"_s}));
}

TEST_F(HostileShops, WhatIsTooMuchForAnyMemoryIsError7)
{
    const QByteArray types = "<ShopShipping>" + QByteArray("<Type/>").repeated(1000) + "</ShopShipping>";
    const auto frames = [](int count) {
        return "<ShopShippingCosts>" + QByteArray("<CostsFrame/>").repeated(count) + "</ShopShippingCosts>";
    };
    EXPECT_EQ(load(shopFile(types + frames(1000))), 0);
    EXPECT_EQ(load(shopFile(types + frames(1001))), 7);
    const auto bands = [](int count) {
        return small("500 nested categories over one discount", 0)
            .replace("<Status>No</Status>", QByteArray("<PriceFrame/>").repeated(count));
    };
    EXPECT_EQ(load(bands(200)), 0);
    EXPECT_EQ(load(bands(201)), 7);
    EXPECT_EQ(load(small("ids of related products in each other", 2000)), 0);
    EXPECT_EQ(load(small("ids of related products in each other", 5000)), 7);
}

TEST_F(HostileShops, AThousandShippingTypesAreReadAndOneMoreIsError7)
{
    const auto types = [](int count) {
        return "<ShopShipping>" + QByteArray("<Type/>").repeated(count) + "</ShopShipping>";
    };
    EXPECT_EQ(load(shopFile(types(1000))), 0);
    EXPECT_EQ(session.shop->ShippingTypeName->Count(), 1000);
    EXPECT_EQ(load(shopFile(types(1001))), 7);
}

} // namespace
