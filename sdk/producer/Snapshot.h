#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// The entries that one enumeration returned, found by index and by ID.
template <typename Record>
class Snapshot
{
public:
    Snapshot() = default;

    /// Keeps the order. Leaves out an entry without an ID or with the ID of an earlier entry, because a
    /// consumer could not ask for it.
    explicit Snapshot(std::vector<Record> records)
    {
        m_records.reserve(records.size());
        for (Record &record : records) {
            cutAtNul(record.id);
            if (record.id.empty() || !m_indexById.emplace(record.id, m_records.size()).second)
                continue;
            m_records.push_back(std::move(record));
        }
    }

    std::uint32_t count() const { return static_cast<std::uint32_t>(m_records.size()); }

    /// Returns null if there is no such entry; otherwise the pointer is valid as long as the snapshot.
    const Record *at(std::uint32_t index) const
    {
        return index < m_records.size() ? &m_records[index] : nullptr;
    }

    /// Returns null if there is no such entry; otherwise the pointer is valid as long as the snapshot.
    const Record *find(const std::string &id) const
    {
        const auto entry = m_indexById.find(id);
        return entry != m_indexById.end() ? &m_records[entry->second] : nullptr;
    }

    bool operator!=(const Snapshot &other) const { return !(m_records == other.m_records); }

private:
    // A consumer gets an ID up to its first NUL only, and asks for the entry with that part.
    static void cutAtNul(std::string &text) { text.resize(std::min(text.find('\0'), text.size())); }

    std::vector<Record> m_records;
    std::unordered_map<std::string, std::size_t> m_indexById;
};
