#include "model/ProductTexts.h"

#include <algorithm>

const std::shared_ptr<TextCollection>& ProductTexts::table()
{
    if (!m_table) {
        m_table = m_read ? std::make_shared<TextCollection>(*m_read->pattern) : std::make_shared<TextCollection>();
        if (m_read) {
            for (const auto& [position, text] : m_read->rows) {
                m_table->Item(position) = text;
            }
        }
        m_read.reset();
    }
    return m_table;
}

void ProductTexts::setRead(std::shared_ptr<const TextCollection> pattern, Rows rows)
{
    m_table.reset();
    m_read = std::make_shared<const Read>(Read{std::move(pattern), std::move(rows)});
}

const QString* ProductTexts::find(const QString& key) const
{
    if (!m_table && !m_read) {
        return nullptr;
    }
    const TextCollection& table = m_table ? *m_table : *m_read->pattern;
    const int position = table.indexOf(key);
    if (position == 0) {
        return nullptr;
    }
    if (!m_table) {
        const auto row = std::find_if(m_read->rows.begin(), m_read->rows.end(),
                                      [position](const auto& read) { return read.first == position; });
        if (row != m_read->rows.end()) {
            return &row->second;
        }
    }
    return &table.Item(position);
}
