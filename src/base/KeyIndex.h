// The keys of one KeyedCollection and the positions that they stand for. Keys are compared without regard to case. Most
// keys of a shop are "ID" and a number, or a number alone: these are held as numbers and need no text. A few keys are
// searched one by one; a table of hashes is made when there are more.
#pragma once

#include <QSharedData>
#include <QString>

#include <vector>

class KeyIndex : public QSharedData
{
public:
    // The 0-based position of a key, -1 when there is none.
    int find(const QString& key) const noexcept;
    // Adds a key for a 0-based position. False, and nothing changed, when the key is there already.
    bool insert(const QString& key, int position);
    // Forgets the keys of the positions that are marked, and moves those behind them up. There is a mark for each
    // position, 0-based.
    void removePositions(const std::vector<bool>& isGone);
    void reserve(int count);

private:
    struct Entry
    {
        qint64 number; // of a key that has one; below 0 the key is m_texts[-1 - number]
        int position;  // 0-based
        quint32 hash;
    };

    // A key in the form in which it is looked for.
    struct Probe;

    bool matches(const Entry& entry, const Probe& probe) const noexcept;
    int findEntry(const Probe& probe) const noexcept;
    void rebuildSlots(std::size_t count);
    void addToSlots(std::size_t entry);

    std::vector<Entry> m_entries; // by position
    std::vector<QString> m_texts; // keys of other forms
    std::vector<int> m_slots;     // open hash table of 1-based places in m_entries, 0 is free; empty while keys are few
};
