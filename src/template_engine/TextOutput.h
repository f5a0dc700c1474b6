// The one growing text that an expansion writes into. It differs from QString::append in that the common case, a short
// text and room for it, is a few instructions; that makes an expansion a fifth faster.
#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <cstring>

class TextOutput
{
public:
    void append(QStringView text)
    {
        const auto size = static_cast<std::size_t>(text.size());
        if (size > m_room - m_size) {
            grow(size);
        }
        copy(m_data + m_size, text.utf16(), size);
        m_size += size;
    }

    void append(QLatin1StringView text)
    {
        const auto size = static_cast<std::size_t>(text.size());
        if (size > m_room - m_size) {
            grow(size);
        }
        std::transform(text.begin(), text.end(), m_data + m_size, [](char c) { return QLatin1Char(c).unicode(); });
        m_size += size;
    }

    // The text that was written. Nothing can be written after it.
    QString take();

private:
    // A text of Units to 2 * Units units as its first and its last Units, which may overlap.
    template <std::size_t Units>
    static void copyEnds(char16_t* to, const char16_t* from, std::size_t size)
    {
        std::array<char16_t, Units> head;
        std::array<char16_t, Units> tail;
        std::memcpy(head.data(), from, sizeof(head));
        std::memcpy(tail.data(), from + size - Units, sizeof(tail));
        std::memcpy(to, head.data(), sizeof(head));
        std::memcpy(to + size - Units, tail.data(), sizeof(tail));
    }

    static void copy(char16_t* to, const char16_t* from, std::size_t size)
    {
        if (size > 32) {
            std::memcpy(to, from, size * sizeof(char16_t));
        } else if (size >= 16) {
            copyEnds<16>(to, from, size);
        } else if (size >= 8) {
            copyEnds<8>(to, from, size);
        } else if (size >= 4) {
            copyEnds<4>(to, from, size);
        } else {
            for (std::size_t i = 0; i < size; ++i) {
                to[i] = from[i];
            }
        }
    }

    void grow(std::size_t atLeast);

    QString m_text;
    char16_t* m_data = nullptr; // of m_text
    std::size_t m_size = 0;     // what was written of it
    std::size_t m_room = 0;     // its size
};
