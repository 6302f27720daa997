#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/LastError.h"
#include "sdk/producer/Snapshot.h"

#include <mutex>
#include <optional>
#include <string>
#include <utility>

/// One list of the C interface: its entries as of the last update. Any thread may call any function; a call
/// during an update blocks until the update has ended. The functions return the error codes of GenTL and set
/// the thread's last error.
template <typename Record>
class UpdatedList
{
public:
    /// Replaces the entries by those that enumerate() returns, and sets `changed`, which may be null. If
    /// enumerate() throws, the list stays unchanged and the exception reaches the caller.
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

    /// Returns GC_ERR_INVALID_PARAMETER for null and GC_ERR_NOT_AVAILABLE before the first update.
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

    /// Returns GC_ERR_INVALID_PARAMETER for an incomplete output, GC_ERR_NOT_AVAILABLE before the first
    /// update and GC_ERR_INVALID_INDEX past the end.
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

    /// Returns what writeInfo(record, command, output) returns; GC_ERR_INVALID_PARAMETER for a null ID or an
    /// incomplete output and GC_ERR_INVALID_ID for an unknown ID.
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

    /// Returns a copy of the entry, or nothing for an unknown ID.
    std::optional<Record> find(const std::string &id) const
    {
        const std::lock_guard lock(m_mutex);
        const Record *const record = m_records.find(id);
        return record ? std::optional(*record) : std::nullopt;
    }

private:
    mutable std::mutex m_mutex; // Guards what follows.
    bool m_isUpdated = false;
    Snapshot<Record> m_records;
};
