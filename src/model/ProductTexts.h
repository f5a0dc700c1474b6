// A product's own table of texts, with a row for each shipping type or tax of the shop. Most products say little or
// nothing in theirs, and a shop has many: until somebody asks for the table, it is held as what the file said, beside a
// pattern that all products share.
#pragma once

#include "base/KeyedCollection.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

using TextCollection = KeyedCollection<QString>;

class ProductTexts
{
public:
    // The table, made on first use: empty, or the pattern with what was read.
    const std::shared_ptr<TextCollection>& table();

    // The table is to be the pattern, with these texts in the rows named; positions are 1-based.
    using Rows = std::vector<std::pair<int, QString>>;
    void setRead(std::shared_ptr<const TextCollection> pattern, Rows rows);

    // The text under the key, none when there is no such row. The table is not made for that.
    const QString* find(const QString& key) const;

private:
    struct Read
    {
        std::shared_ptr<const TextCollection> pattern;
        Rows rows; // by position
    };

    std::shared_ptr<TextCollection> m_table;
    std::shared_ptr<const Read> m_read; // until the table is made
};
