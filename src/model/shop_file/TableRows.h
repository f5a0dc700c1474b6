// The rows of a table in the shop file: all elements of one name below another, in document order, each with the first
// of some names below it. A row may lie in another one, and both may find the same text, which they then share.
#pragma once

#include "base/XmlReading.h"

#include <QString>

#include <cstddef>
#include <span>
#include <vector>

struct ShopReading;

class TableRows
{
public:
    // The rows are the elements `rowName` below the place; `columns` are the names that are looked up in each. What is
    // handed over must outlive it.
    TableRows(const FlatElements& elements, std::size_t rowName, FlatElements::Place below,
              std::span<const std::size_t> columns, ShopReading& reading);

    std::size_t count() const { return m_rows.size(); }
    // Goes to the first row, and on from row to row; false behind the last.
    bool next();
    // The text of a column in the row, the default where there is none.
    QString text(std::size_t column, const QString& defaultText = QString());

private:
    struct Known
    {
        FlatElements::Place place = FlatElements::none;
        QString text;
    };

    const FlatElements& m_elements;
    ShopReading& m_reading;
    std::vector<FlatElements::Place> m_rows;
    std::vector<FlatElements::Place> m_hits;
    std::vector<Known> m_known; // the last text of each column
    std::size_t m_next = 0;
};
