#include "sdk/device/TemporaryRequests.h"

using namespace CvxCPP;

namespace {

std::string refusalText(const std::vector<std::string> &reasons)
{
    std::string text = "Some settings could not be put back.";
    for (const std::string &reason : reasons)
        text += ' ' + reason;
    return text;
}

} // namespace

CvxResult TemporaryRequests::begin()
{
    const TimePoint end = deadline();
    const auto turn = m_core.takeTurn(end);
    if (const auto *refused = std::get_if<CvxResult>(&turn))
        return *refused;
    if (m_core.temporary.isActive())
        return m_core.results.result(CvxErrorAlreadyStarted, "Temporary changes have begun already.");
    auto answer = m_core.ask<TemporaryChangesBegunReply>(
        std::get<DeviceGate::Turn>(turn), BeginTemporaryChangesRequest{}, end);
    if (auto *failed = std::get_if<CvxResult>(&answer))
        return std::move(*failed);
    m_core.temporary.begin(m_core.journal);
    return {};
}

CvxResult TemporaryRequests::end(TemporaryChanges how)
{
    if (!m_core.temporary.isActive())
        return m_core.results.result(CvxErrorNotAvailable, "No temporary changes have begun.");
    // If the camera is lost now, the thread of the device ends the changes when it has opened the camera.
    m_core.temporary.requestEnd(how);
    CvxResult result = endAsRequested();
    if (result.code == CvxErrorTimeout && m_core.gate.state() == DeviceState::Open)
        m_core.temporary.cancelEnd(); // The host is busy; the program may try again.
    return result;
}

CvxResult TemporaryRequests::endAsRequested()
{
    const TimePoint end = deadline();
    const auto turn = m_core.takeTurn(end);
    if (const auto *refused = std::get_if<CvxResult>(&turn))
        return *refused;
    const auto how = m_core.temporary.requestedEnd();
    if (!how)
        return {}; // Another thread has ended them.
    auto answer = m_core.ask<TemporaryChangesEndedReply>(
        std::get<DeviceGate::Turn>(turn), EndTemporaryChangesRequest{*how == TemporaryChanges::PutBack}, end);
    if (auto *failed = std::get_if<CvxResult>(&answer))
        return std::move(*failed);
    const auto &ended = std::get<TemporaryChangesEndedReply>(answer);
    m_core.temporary.end(*how, m_core.journal, ended.refused);
    if (ended.refused.empty())
        return {};
    return m_core.results.result(CvxErrorNotWritable, refusalText(ended.reasons));
}
