#include "sdk/device/TemporaryValues.h"

#include <utility>

using CvxCPP::TemporaryChanges;

void TemporaryValues::begin(const WriteJournal &journal)
{
    m_journalBefore = journal;
    m_isActive = true;
    m_isPutBackAtClose = true;
}

void TemporaryValues::end(
    TemporaryChanges how, WriteJournal &journal, const std::vector<SelectedValue> &refused)
{
    if (how == TemporaryChanges::PutBack && m_journalBefore) {
        journal = std::move(*m_journalBefore);
        journal.doubtSelectors(); // The camera may have refused the value of one.
    }
    m_journalBefore.reset();
    m_remembered = refused;
    m_request = Request::None;
    m_isActive = false;
    m_isPutBackAtClose = !refused.empty();
}

void TemporaryValues::requestEnd(TemporaryChanges how)
{
    m_request = how == TemporaryChanges::PutBack ? Request::PutBack : Request::Keep;
}

std::optional<TemporaryChanges> TemporaryValues::requestedEnd() const
{
    switch (m_request) {
    case Request::PutBack:
        return TemporaryChanges::PutBack;
    case Request::Keep:
        return TemporaryChanges::Keep;
    case Request::None:
        break;
    }
    return std::nullopt;
}
