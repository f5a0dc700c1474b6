// The list of nearly everything in the model: ordered, found by 1-based position or by an optional text key. Keys are
// compared without regard to case, as QString's case-insensitive comparison does. Finding by key is O(1) on average,
// adding O(1) amortised, removing O(n), however many are removed at once. A copy shares the keys until one of the two
// gets or loses one.
#pragma once

#include "base/KeyIndex.h"
#include "base/RuntimeError.h"

#include <QExplicitlySharedDataPointer>
#include <QString>

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

template <class T>
class KeyedCollection
{
    static_assert(!std::is_same_v<T, bool>, "a vector of bool has no items to refer to");

public:
    // Appends an item without a key.
    void Add(T item) { m_items.push_back(std::move(item)); }
    // Appends an item under a key. ErrorNumber::DuplicateKey, and nothing changed, when the key is there
    // already.
    void Add(T item, const QString& key)
    {
        if (!m_keys) {
            m_keys = new KeyIndex; // owned by the pointer
            m_keys->reserve(static_cast<int>(m_items.capacity()));
        }
        m_keys.detach();
        if (!m_keys->insert(key, Count())) {
            throw RuntimeError(ErrorNumber::DuplicateKey);
        }
        m_items.push_back(std::move(item));
    }

    int Count() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    // Makes room for that many items, and for their keys when there are none yet.
    void reserve(int count) { m_items.reserve(static_cast<std::size_t>(count)); }

    // The item at a position, 1-based. ErrorNumber::SubscriptOutOfRange when there is none.
    T& Item(int index) { return m_items[checkedPosition(index)]; }
    const T& Item(int index) const { return m_items[checkedPosition(index)]; }
    // The item under a key. ErrorNumber::InvalidArgument when there is none.
    T& Item(const QString& key) { return m_items[checkedPosition(key)]; }
    const T& Item(const QString& key) const { return m_items[checkedPosition(key)]; }

    bool hasKey(const QString& key) const noexcept { return indexOf(key) != 0; }
    // The 1-based position of a key, 0 when there is none.
    int indexOf(const QString& key) const noexcept { return m_keys ? m_keys->find(key) + 1 : 0; }

    // Removes one item; those behind it move up. Errors as for Item.
    void Remove(int index) { removePosition(checkedPosition(index)); }
    void Remove(const QString& key) { removePosition(checkedPosition(key)); }
    // Removes one item after the other, in one go. At a key that is missing, or is there for the second time, those
    // ahead of it are gone, and the error is as for Item.
    void removeAll(const std::vector<QString>& keys)
    {
        std::vector<bool> isGone(m_items.size());
        const auto missing = std::find_if(keys.begin(), keys.end(), [&](const QString& key) {
            const int index = indexOf(key);
            const bool isThere = index != 0 && !isGone[static_cast<std::size_t>(index - 1)];
            if (isThere) {
                isGone[static_cast<std::size_t>(index - 1)] = true;
            }
            return !isThere;
        });
        removeMarked(isGone);
        if (missing != keys.end()) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
    }
    void Clear()
    {
        m_items.clear();
        m_keys.reset();
    }

    // Items in order, for range-based loops.
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::size_t checkedPosition(int index) const
    {
        if (index < 1 || index > Count()) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(index - 1);
    }
    std::size_t checkedPosition(const QString& key) const
    {
        const int index = indexOf(key);
        if (index == 0) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        return static_cast<std::size_t>(index - 1);
    }
    void removePosition(std::size_t position)
    {
        std::vector<bool> isGone(m_items.size());
        isGone[position] = true;
        removeMarked(isGone);
    }
    void removeMarked(const std::vector<bool>& isGone)
    {
        if (m_keys) {
            m_keys.detach();
            m_keys->removePositions(isGone);
        }
        std::size_t kept = 0;
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (isGone[i]) {
                continue;
            }
            if (kept != i) {
                m_items[kept] = std::move(m_items[i]);
            }
            ++kept;
        }
        m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(kept), m_items.end());
    }

    std::vector<T> m_items;
    QExplicitlySharedDataPointer<KeyIndex> m_keys; // made with the first key
};
