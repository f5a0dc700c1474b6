#include "design/PageTable.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

#define TARNWICK_PAGE_ROW(page, name, kind, advanced, reading, composing, checking)                                    \
    PageRow{ShopPage::page, QLatin1StringView(name), PageKind::kind, advanced, reading, composing, checking},
constexpr std::array pageRows = {TARNWICK_PAGES(TARNWICK_PAGE_ROW)};
#undef TARNWICK_PAGE_ROW

} // namespace

std::span<const PageRow> pageTable()
{
    return pageRows;
}

const PageRow& rowOf(ShopPage page)
{
    return pageRows[static_cast<std::size_t>(page)];
}

QString nameOf(ShopPage page)
{
    return rowOf(page).name;
}

QStringList pageNamesBy(int PageRow::*order)
{
    std::vector<PageRow> rows;
    std::copy_if(pageRows.begin(), pageRows.end(), std::back_inserter(rows),
                 [order](const PageRow& row) { return row.*order != 0; });
    std::sort(rows.begin(), rows.end(),
              [order](const PageRow& left, const PageRow& right) { return left.*order < right.*order; });
    QStringList names;
    for (const PageRow& row : rows) {
        names.append(row.name);
    }
    return names;
}
