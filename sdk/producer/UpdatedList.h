#pragma once

#include "sdk/producer/Answer.h"
#include "sdk/producer/Snapshot.h"

#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// One list of the C interface: its entries as of the last update, and the answers that are read from them.
template <typename Record>
class UpdatedList
{
public:
    /// Searches and keeps what is found. The lock is held meanwhile, so a reader gets the old list or the
    /// new.
    template <typename Search>
    GenTL::GC_ERROR update(Search &&search, GenTL::bool8_t *changed)
    {
        const std::lock_guard lock(m_mutex);
        Snapshot<Record> found(search());
        if (changed)
            *changed = found != m_records;
        m_records = std::move(found);
        m_updated = true;
        return GenTL::GC_ERR_SUCCESS;
    }

    GenTL::GC_ERROR count(std::uint32_t *output) const
    {
        if (!output)
            return failArgumentMissing();
        const std::lock_guard lock(m_mutex);
        if (!m_updated)
            return failNeverUpdated();
        *output = m_records.count();
        return GenTL::GC_ERR_SUCCESS;
    }

    GenTL::GC_ERROR id(std::uint32_t index, const Answer &answer) const
    {
        if (!answer.isComplete())
            return failArgumentMissing();
        const std::lock_guard lock(m_mutex);
        if (!m_updated)
            return failNeverUpdated();
        const Record *const record = m_records.at(index);
        return record ? answer.text(record->id) : failIndex(index, m_records.count());
    }

    /// Answers with answerInfo(record, command, answer), a function of the record's kind.
    template <typename AnswerInfo>
    GenTL::GC_ERROR info(
        const std::string &id, std::int32_t command, const Answer &answer, AnswerInfo &&answerInfo) const
    {
        if (!answer.isComplete())
            return failArgumentMissing();
        const std::lock_guard lock(m_mutex);
        const Record *const record = m_records.find(id);
        return record ? answerInfo(*record, command, answer) : failUnknownId(id);
    }

    /// Nothing for an ID that is not in the list.
    std::optional<Record> find(const std::string &id) const
    {
        const std::lock_guard lock(m_mutex);
        const Record *const record = m_records.find(id);
        return record ? std::optional(*record) : std::nullopt;
    }

private:
    mutable std::mutex m_mutex; // Guards what follows.
    bool m_updated = false;
    Snapshot<Record> m_records;
};
