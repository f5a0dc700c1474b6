#include "model/shop_file/LevelDiscount.h"

#include "base/RuntimeError.h"
#include "model/clsDiscount.h"
#include "model/shop_file/ShopReading.h"
#include "model/shop_file/TableRows.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

enum Element : std::size_t { Status, DateFrom, DateTo, Percentage, PriceFrame, From, To, Percent, Count };
constexpr std::array<const char*, Count> discountNames = {"Status",     "DateFrom", "DateTo", "ApplyToAll",
                                                          "PriceFrame", "From",     "To",     "Percent"};
constexpr std::array<std::size_t, 3> inBand = {From, To, Percent};

// Bands that belong to a category below; a file that is written here makes nobody take any.
constexpr std::size_t mostRepeatedBands = 100'000;

} // namespace

void LevelDiscount::read(const pugi::xml_node& element, clsDiscount& discount, const QString& defaultStatus,
                         ShopReading& reading)
{
    if (m_element != element) {
        take(element, reading);
    } else if ((m_repeatedBands += m_bands.size()) > mostRepeatedBands) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    discount.Status = StatusFromWord(m_status.value_or(defaultStatus));
    discount.DateFrom = m_dateFrom;
    discount.DateTo = m_dateTo;
    discount.setApplyToWhole(m_percentage);
    for (const Band& band : m_bands) {
        discount.DependedDiscounts()->Add(band.from, band.to, band.percent);
    }
}

void LevelDiscount::take(const pugi::xml_node& element, ShopReading& reading)
{
    FlatElements elements(discountNames);
    elements.gather(element);
    std::array<FlatElements::Place, Count> found{};
    elements.findFirst(0, found);
    const auto textOf = [&](Element name, const QString& defaultText = QString()) {
        return reading.text(elements, found[name], defaultText);
    };
    m_element = element;
    m_status = found[Status] != FlatElements::none ? std::optional(textOf(Status)) : std::nullopt;
    m_dateFrom = reading.pool.date(textOf(DateFrom));
    m_dateTo = reading.pool.date(textOf(DateTo));
    m_percentage = textOf(Percentage, u"0"_s);
    m_bands.clear();
    TableRows rows(elements, PriceFrame, 0, inBand, reading);
    while (rows.next()) {
        m_bands.push_back({rows.text(0), rows.text(1), rows.text(2)});
    }
}
