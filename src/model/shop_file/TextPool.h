// Texts that stand in a shop file again and again ("No", "0", "piece", "31.12.2024"), made once and shared by all
// objects that have them. It forgets what it has no place for, and it holds short texts only.
#pragma once

#include <QString>

#include <array>
#include <cstddef>

class TextPool
{
public:
    // The text of a zero-ended UTF-8 text.
    QString text(const char* utf8);
    // The local date text of a file's date text; the empty text when it is none.
    QString date(const QString& fileDate);

private:
    static constexpr std::size_t longest = 15;

    struct Entry
    {
        std::array<char, longest + 1> utf8{};
        QString text;
    };

    std::array<Entry, 256> m_entries;
    // The dates that were asked for last, and where the next one goes.
    struct Date
    {
        QString fileDate;
        QString local;
    };
    std::array<Date, 8> m_dates;
    std::size_t m_nextDate = 0;
};
