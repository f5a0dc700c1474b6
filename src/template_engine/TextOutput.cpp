#include "template_engine/TextOutput.h"

#include <algorithm>
#include <utility>

void TextOutput::grow(std::size_t atLeast)
{
    constexpr std::size_t firstRoom = 4096;
    m_room = std::max({firstRoom, m_room * 2, m_size + atLeast});
    m_text.resize(static_cast<qsizetype>(m_room));
    m_data = reinterpret_cast<char16_t*>(m_text.data());
}

QString TextOutput::take()
{
    m_text.resize(static_cast<qsizetype>(m_size));
    return std::move(m_text);
}
