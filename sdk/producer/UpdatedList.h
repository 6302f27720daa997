#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/LastError.h"
#include "sdk/producer/Snapshot.h"

#include <mutex>
#include <optional>
#include <string>
#include <utility>

/// A list of interfaces or devices. It contains the entries that the last update found. Any thread may call
/// any function; a call during an update blocks until the update has ended. A function that fails returns an
/// error code of GenTL and sets the thread's last error.
template <typename Record>
class UpdatedList
{
public:
    /// Replaces the entries by the result of enumerate(). If `changed` is not null, sets it to whether the
    /// new entries differ from the old ones. If enumerate() throws, the list stays unchanged and the
    /// exception reaches the caller.
    template <typename Enumerate>
    GenTL::GC_ERROR update(Enumerate &&enumerate, GenTL::bool8_t *changed)
    {
        const std::lock_guard lock(m_mutex);
        Snapshot<Record> found(enumerate());
        if (changed)
            *changed = found != m_records;
        m_records = std::move(found);
        m_isUpdated = true;
        return GenTL::GC_ERR_SUCCESS;
    }

    /// Writes the number of entries. Returns GC_ERR_INVALID_PARAMETER if `output` is null and
    /// GC_ERR_NOT_AVAILABLE before the first update.
    GenTL::GC_ERROR count(std::uint32_t *output) const
    {
        if (!output)
            return failMissingArgument();
        const std::lock_guard lock(m_mutex);
        if (!m_isUpdated)
            return failNeverUpdated();
        *output = m_records.count();
        return GenTL::GC_ERR_SUCCESS;
    }

    /// Writes the ID of an entry. Returns GC_ERR_INVALID_PARAMETER if the output is incomplete,
    /// GC_ERR_NOT_AVAILABLE before the first update and GC_ERR_INVALID_INDEX if there is no entry with this
    /// index.
    GenTL::GC_ERROR id(std::uint32_t index, const InfoOutput &output) const
    {
        if (!output.isComplete())
            return failMissingArgument();
        const std::lock_guard lock(m_mutex);
        if (!m_isUpdated)
            return failNeverUpdated();
        const Record *const record = m_records.at(index);
        return record ? output.writeString(record->id) : failIndex(index, m_records.count());
    }

    /// Calls writeInfo(record, command, output) for the entry with this ID and returns its result. Returns
    /// GC_ERR_INVALID_PARAMETER if the ID is null or the output is incomplete, and GC_ERR_INVALID_ID if there
    /// is no entry with this ID.
    template <typename WriteInfo>
    GenTL::GC_ERROR info(
        const char *id, std::int32_t command, const InfoOutput &output, WriteInfo &&writeInfo) const
    {
        if (!id || !output.isComplete())
            return failMissingArgument();
        const std::lock_guard lock(m_mutex);
        const Record *const record = m_records.find(id);
        return record ? writeInfo(*record, command, output) : failUnknownId(id);
    }

    /// Returns a copy of the entry with this ID, or nothing if there is no such entry.
    std::optional<Record> find(const std::string &id) const
    {
        const std::lock_guard lock(m_mutex);
        const Record *const record = m_records.find(id);
        return record ? std::optional(*record) : std::nullopt;
    }

    /// Returns the number of entries, which is 0 before the first update.
    std::uint32_t size() const
    {
        const std::lock_guard lock(m_mutex);
        return m_records.count();
    }

    /// Returns a copy of the entry with this index, or nothing if there is no such entry.
    std::optional<Record> at(std::uint64_t index) const
    {
        const std::lock_guard lock(m_mutex);
        const Record *const record = m_records.at(index);
        return record ? std::optional(*record) : std::nullopt;
    }

private:
    mutable std::mutex m_mutex; // Guards the members below.
    bool m_isUpdated = false;
    Snapshot<Record> m_records;
};
