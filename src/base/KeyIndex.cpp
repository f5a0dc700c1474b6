#include "base/KeyIndex.h"

#include <QHashSeed>

#include <algorithm>
#include <bit>

namespace {

constexpr std::size_t fewKeys = 8;

// Spreads every bit over the whole word. The seed differs from run to run, so that no file can be made to collide.
quint64 mix(quint64 value) noexcept
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31);
}

// Ids that follow one another are mostly asked for one after another: four of them stand side by side.
quint32 hashOfNumber(qint64 number) noexcept
{
    constexpr int bits = 2;
    const auto whole = static_cast<quint64>(number);
    const quint64 place = mix((whole >> bits) ^ QHashSeed::globalSeed()) << bits;
    return static_cast<quint32>(place | (whole & ((1U << bits) - 1)));
}

quint32 hashOfText(QStringView text) noexcept
{
    quint64 hash = QHashSeed::globalSeed();
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t letter = text[i].unicode();
        if (letter < 0x80) {
            letter = letter >= U'A' && letter <= U'Z' ? letter + 0x20 : letter;
        } else if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            letter = QChar::toCaseFolded(QChar::surrogateToUcs4(text[i], text[i + 1]));
            ++i;
        } else {
            letter = QChar::toCaseFolded(letter);
        }
        hash = (hash ^ letter) * 0x9E3779B97F4A7C15ULL;
    }
    return static_cast<quint32>(mix(hash));
}

// The number of a key "ID12", or of a key "12", which is another key and has another number; -1 for a key of another
// form, a number with zeros ahead or past 18 digits included.
qint64 numberOfKey(QStringView key) noexcept
{
    constexpr qint64 withoutPrefix = qint64{1} << 62;
    const bool hasPrefix = key.size() > 2 && (key[0] == u'I' || key[0] == u'i') && (key[1] == u'D' || key[1] == u'd');
    const QStringView digits = hasPrefix ? key.sliced(2) : key;
    constexpr qsizetype mostDigits = 18;
    if (digits.isEmpty() || digits.size() > mostDigits || (digits[0] == u'0' && digits.size() > 1)) {
        return -1;
    }
    qint64 number = 0;
    for (const QChar letter : digits) {
        if (letter < u'0' || letter > u'9') {
            return -1;
        }
        number = number * 10 + (letter.unicode() - u'0');
    }
    return hasPrefix ? number : number + withoutPrefix;
}

} // namespace

struct KeyIndex::Probe
{
    explicit Probe(const QString& key) noexcept
        : text(key), number(numberOfKey(key)), hash(number >= 0 ? hashOfNumber(number) : hashOfText(key))
    {
    }

    QStringView text;
    qint64 number;
    quint32 hash;
};

int KeyIndex::find(const QString& key) const noexcept
{
    const int entry = findEntry(Probe(key));
    return entry < 0 ? -1 : m_entries[static_cast<std::size_t>(entry)].position;
}

bool KeyIndex::insert(const QString& key, int position)
{
    const Probe probe(key);
    if (findEntry(probe) >= 0) {
        return false;
    }
    Entry entry{probe.number, position, probe.hash};
    if (probe.number < 0) {
        if (m_texts.empty()) {
            m_texts.reserve(std::min(m_entries.capacity(), fewKeys));
        }
        m_texts.push_back(key);
        entry.number = -static_cast<qint64>(m_texts.size());
    }
    m_entries.push_back(entry);
    // At most half of the slots are in use, so that a search ends soon.
    if (m_entries.size() * 2 > m_slots.size()) {
        if (m_entries.size() > fewKeys) {
            rebuildSlots(m_entries.size());
        }
    } else {
        addToSlots(m_entries.size() - 1);
    }
    return true;
}

void KeyIndex::removePositions(const std::vector<bool>& isGone)
{
    std::size_t kept = 0;
    std::vector<QString> texts;
    int seen = 0; // positions
    int gone = 0; // of these
    for (Entry entry : m_entries) {
        for (; seen < entry.position; ++seen) {
            gone += isGone[static_cast<std::size_t>(seen)] ? 1 : 0;
        }
        if (isGone[static_cast<std::size_t>(entry.position)]) {
            continue;
        }
        entry.position -= gone;
        if (entry.number < 0) {
            texts.push_back(std::move(m_texts[static_cast<std::size_t>(-1 - entry.number)]));
            entry.number = -static_cast<qint64>(texts.size());
        }
        m_entries[kept++] = entry;
    }
    m_entries.resize(kept);
    m_texts = std::move(texts);
    m_slots.clear();
    if (kept > fewKeys) {
        rebuildSlots(kept);
    }
}

void KeyIndex::reserve(int count)
{
    m_entries.reserve(static_cast<std::size_t>(count));
    if (count > static_cast<int>(fewKeys)) {
        rebuildSlots(static_cast<std::size_t>(count));
    }
}

bool KeyIndex::matches(const Entry& entry, const Probe& probe) const noexcept
{
    if (entry.hash != probe.hash) {
        return false;
    }
    if (probe.number >= 0 || entry.number >= 0) {
        return entry.number == probe.number;
    }
    const QString& text = m_texts[static_cast<std::size_t>(-1 - entry.number)];
    return probe.text.compare(text, Qt::CaseInsensitive) == 0;
}

int KeyIndex::findEntry(const Probe& probe) const noexcept
{
    if (m_slots.empty()) {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            if (matches(m_entries[i], probe)) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t slot = probe.hash & mask; m_slots[slot] != 0; slot = (slot + 1) & mask) {
        const int entry = m_slots[slot] - 1;
        if (matches(m_entries[static_cast<std::size_t>(entry)], probe)) {
            return entry;
        }
    }
    return -1;
}

void KeyIndex::rebuildSlots(std::size_t count)
{
    m_slots.assign(std::bit_ceil(count * 2), 0);
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        addToSlots(i);
    }
}

void KeyIndex::addToSlots(std::size_t entry)
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = m_entries[entry].hash & mask;
    while (m_slots[slot] != 0) {
        slot = (slot + 1) & mask;
    }
    m_slots[slot] = static_cast<int>(entry + 1);
}
