#pragma once

#include <algorithm>
#include <list>
#include <unordered_map>
#include <utility>

#include "ut/utString.h"

/// A hash table from strings to strings that is walked in the order in which its keys were first put in.
class utStringutStringcoTable {
public:
    using value_type = std::pair<utString const, utString>;
    using const_iterator = std::list<value_type>::const_iterator;

    /// Sizing: the buckets to begin with and how full, in per cent, they may become before there are more.
    explicit utStringutStringcoTable(int buckets = 4, int fill_percent = 50)
    {
        m_index.max_load_factor(static_cast<float>(std::clamp(fill_percent, 1, 1000)) / 100.0F);
        m_index.rehash(static_cast<std::size_t>(std::max(buckets, 1)));
    }
    utStringutStringcoTable(utStringutStringcoTable const & other)
    {
        m_index.max_load_factor(other.m_index.max_load_factor());
        for (auto const & [key, value] : other)
            (*this)[key] = value;
    }
    utStringutStringcoTable & operator=(utStringutStringcoTable const & other)
    {
        utStringutStringcoTable copy(other);
        m_entries.swap(copy.m_entries);
        m_index.swap(copy.m_index);
        return *this;
    }

    /// The value of the key, which is put in with an empty value when it is not there. The reference stays
    /// valid until the key is removed.
    utString & operator[](utString const & key)
    {
        auto const found = m_index.find(key);
        if (found != m_index.end())
            return found->second->second;
        m_entries.emplace_back(key, utString());
        auto const entry = std::prev(m_entries.end());
        m_index.emplace(key, entry);
        return entry->second;
    }
    int member(utString const & key) const { return m_index.contains(key) ? 1 : 0; }
    /// The value of the key, or an invalid string.
    utString read(utString const & key) const
    {
        auto const found = m_index.find(key);
        return found == m_index.end() ? utString::make_invalid() : found->second->second;
    }
    /// Gives 0 and leaves `value` alone when the key is not there.
    int read(utString const & key, utString & value) const
    {
        auto const found = m_index.find(key);
        if (found == m_index.end())
            return 0;
        value = found->second->second;
        return 1;
    }
    /// Gives 0 when the key was not there.
    int remove(utString const & key)
    {
        auto const found = m_index.find(key);
        if (found == m_index.end())
            return 0;
        m_entries.erase(found->second);
        m_index.erase(found);
        return 1;
    }
    void clear()
    {
        m_entries.clear();
        m_index.clear();
    }

    int count() const { return static_cast<int>(m_entries.size()); }
    bool empty() const { return m_entries.empty(); }
    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

private:
    std::list<value_type> m_entries;
    std::unordered_map<utString, std::list<value_type>::iterator> m_index;
};
