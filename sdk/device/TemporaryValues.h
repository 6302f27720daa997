#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/WriteJournal.h"
#include "sdk/protocol/DeviceMessages.h"

#include <atomic>
#include <optional>
#include <vector>

/// What the library knows of the temporary changes of one device, so that they continue, or end, on a camera
/// that is opened again. Use it like the journal of the device; only the const functions may be called at any
/// time, except journalBefore() and remembered().
class TemporaryValues
{
public:
    /// True between the begin and the end.
    bool isActive() const { return m_isActive; }

    /// True if the host has to put values back if the device is closed now.
    bool isPutBackAtClose() const { return m_isPutBackAtClose; }

    /// The host has begun temporary changes.
    void begin(const WriteJournal &journal);

    /// The host has remembered this value before a write.
    void remember(const SelectedValue &value) { m_remembered.push_back(value); }

    /// The host has ended the changes, and remembers the values that the camera has refused. If values were
    /// put back, the journal becomes what it was before, so that a loss does not bring the temporary values
    /// back.
    void end(
        CvxCPP::TemporaryChanges how, WriteJournal &journal, const std::vector<SelectedValue> &refused = {});

    /// The values that a camera that was opened again must have before its host remembers anything. Only
    /// while isActive().
    const WriteJournal &journalBefore() const { return *m_journalBefore; }

    /// What the host has remembered, in this order.
    const std::vector<SelectedValue> &remembered() const { return m_remembered; }

    /// Notes how the changes have to end. Any thread may call this function at any time; end() deletes the
    /// note. The camera may be lost, so whoever can use the host next ends the changes.
    void requestEnd(CvxCPP::TemporaryChanges how);
    void cancelEnd() { m_request = Request::None; }
    std::optional<CvxCPP::TemporaryChanges> requestedEnd() const;

private:
    enum class Request
    {
        None,
        PutBack,
        Keep
    };

    std::atomic<bool> m_isActive{false};
    std::atomic<bool> m_isPutBackAtClose{false};
    std::atomic<Request> m_request{Request::None};
    std::optional<WriteJournal> m_journalBefore; // Empty unless the changes are active.
    std::vector<SelectedValue> m_remembered;
};
