#include "model/shop_file/TableRows.h"

#include "model/shop_file/ShopReading.h"

TableRows::TableRows(const FlatElements& elements, std::size_t rowName, FlatElements::Place below,
                     std::span<const std::size_t> columns, ShopReading& reading)
    : m_elements(elements), m_reading(reading), m_known(columns.size())
{
    elements.findRows(rowName, below, columns, m_rows, m_hits);
}

bool TableRows::next()
{
    return m_next++ < m_rows.size();
}

QString TableRows::text(std::size_t column, const QString& defaultText)
{
    const FlatElements::Place hit = m_hits[(m_next - 1) * m_known.size() + column];
    if (hit == FlatElements::none) {
        return defaultText;
    }
    Known& known = m_known[column];
    if (known.place != hit) {
        known = {hit, m_reading.text(m_elements, hit, QString())};
    }
    return known.text;
}
