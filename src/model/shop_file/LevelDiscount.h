// The discount of the shop or of a category as its element says it. Categories without one of their own take the first
// below them: what was read last is kept for the next that finds the same element. A part of ShopReading.
#pragma once

#include "base/XmlReading.h"

#include <QString>

#include <optional>
#include <vector>

class clsDiscount;
struct ShopReading;

class LevelDiscount
{
public:
    // Fills the discount: status, dates, ApplyToAll and the bands. ErrorNumber::InvalidUseOfNull when Status, or the
    // default in its place, is no status word; ErrorNumber::OutOfMemory when the same bands are taken too often.
    void read(const pugi::xml_node& element, clsDiscount& discount, const QString& defaultStatus, ShopReading& reading);

private:
    struct Band
    {
        QString from;
        QString to;
        QString percent;
    };

    void take(const pugi::xml_node& element, ShopReading& reading);

    pugi::xml_node m_element; // that was taken last
    std::optional<QString> m_status;
    QString m_dateFrom;
    QString m_dateTo;
    QString m_percentage;
    std::vector<Band> m_bands;
    std::size_t m_repeatedBands = 0;
};
