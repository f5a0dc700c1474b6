#include "model/shop_file/TextPool.h"

#include "base/Dates.h"
#include "base/XmlText.h"

#include <cstring>

QString TextPool::text(const char* utf8)
{
    if (*utf8 == '\0') {
        return {};
    }
    std::size_t length = 0;
    std::size_t hash = 0;
    while (length <= longest && utf8[length] != '\0') {
        hash = hash * 31 + static_cast<unsigned char>(utf8[length++]);
    }
    if (length > longest) {
        return textFromUtf8(utf8);
    }
    Entry& entry = m_entries[hash % m_entries.size()];
    if (std::strcmp(entry.utf8.data(), utf8) != 0) {
        std::memcpy(entry.utf8.data(), utf8, length + 1);
        entry.text = textFromUtf8(utf8);
    }
    return entry.text;
}

QString TextPool::date(const QString& fileDate)
{
    if (fileDate.isEmpty()) {
        return {};
    }
    for (const Date& known : m_dates) {
        if (known.fileDate == fileDate) {
            return known.local;
        }
    }
    Date& place = m_dates[m_nextDate++ % m_dates.size()];
    place = {fileDate, DateTextToLocal(fileDate)};
    return place.local;
}
