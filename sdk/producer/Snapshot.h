#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// The entries that one enumeration returned. An entry can be found by its index and by its ID.
template <typename Record>
class Snapshot
{
public:
    Snapshot() = default;

    /// Keeps the order of the records. Omits a record without an ID and a record with the ID of an earlier
    /// record, because a consumer could not request them.
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

    /// Returns null if there is no entry with this index. The pointer is valid as long as the snapshot
    /// exists.
    const Record *at(std::uint64_t index) const
    {
        return index < m_records.size() ? &m_records[index] : nullptr;
    }

    /// Returns null if there is no entry with this ID. The pointer is valid as long as the snapshot exists.
    const Record *find(const std::string &id) const
    {
        const auto entry = m_indexById.find(id);
        return entry != m_indexById.end() ? &m_records[entry->second] : nullptr;
    }

    bool operator!=(const Snapshot &other) const { return !(m_records == other.m_records); }

private:
    // A consumer receives only the part of an ID before the first NUL, and requests the entry with this part.
    static void cutAtNul(std::string &text) { text.resize(std::min(text.find('\0'), text.size())); }

    std::vector<Record> m_records;
    std::unordered_map<std::string, std::size_t> m_indexById;
};
