#pragma once

#include "tests/features/ScriptedDevice.h"

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

/// A scripted device as an opened camera: it can be used from several threads, notifies observers, can be
/// lost and opened again, and lets a test delay its calls.
class TestDevice : public ScriptedDevice
{
public:
    /// Called before every call with its name, for example "Write", on the calling thread and without a lock,
    /// so it may block. Set it before the device is used.
    std::function<void(const std::string &call)> beforeCall;

    /// Changes or reads the script while no call is running. Add features before the device is opened.
    template <typename Change>
    auto change(const Change &change)
    {
        const std::lock_guard lock(m_mutex);
        return change(static_cast<ScriptedDevice &>(*this));
    }

    /// The value of `name` has been written or has changed by itself: the observers are told of these nodes.
    void setDependents(const std::string &name, const std::vector<std::string> &dependents);

    /// Changes a value as the camera itself does, and notifies the observers.
    void setByCamera(const std::string &name, const CvxCPP::NodeValue &value);

    void notifyNodes(const std::vector<std::string> &names);

    /// The camera is gone: every call fails until reopen().
    void lose(const std::string &reason);
    void reopen(const std::string &reason = "The camera is open again.");

    bool isClosed() const;

    /// Returns the names of one kind of call since the device exists, for example all reads: "ReadStates".
    /// Each element contains the names of one call.
    std::vector<std::vector<std::string>> calls(const std::string &kind) const;

    /// Returns the values that were written to a feature, in order.
    std::vector<CvxCPP::NodeValue> writtenValues(const std::string &name) const;

    CvxCPP::CvxResult GetNodes(std::vector<CvxCPP::NodeInfo> &nodes) const override;
    CvxCPP::CvxResult ReadStates(
        const std::vector<std::string> &names, std::vector<CvxCPP::NodeState> &states) override;
    CvxCPP::CvxResult Read(const std::string &name, CvxCPP::NodeValue &value) override;
    CvxCPP::CvxResult Write(const std::string &name, const CvxCPP::NodeValue &value) override;
    CvxCPP::CvxResult Execute(const std::string &name) override;
    CvxCPP::CvxResult BeginTemporaryChanges() override;
    CvxCPP::CvxResult EndTemporaryChanges(CvxCPP::TemporaryChanges how) override;
    CvxCPP::CvxResult AddObserver(const std::shared_ptr<CvxCPP::IDeviceObserver> &observer) override;
    CvxCPP::CvxResult RemoveObserver(const std::shared_ptr<CvxCPP::IDeviceObserver> &observer) override;
    CvxCPP::DeviceState GetState(std::uint32_t &reopenCount) const override;
    CvxCPP::CvxResult Close() override;

private:
    using Observers = std::vector<std::shared_ptr<CvxCPP::IDeviceObserver>>;

    CvxCPP::CvxResult begin(const std::string &kind, const std::vector<std::string> &names) const;
    void setState(CvxCPP::DeviceState state, const std::string &reason);
    Observers observers() const;

    mutable std::mutex m_mutex; // Guards everything, and the script of the base class.
    mutable std::vector<std::pair<std::string, std::vector<std::string>>> m_calls;
    std::vector<std::pair<std::string, CvxCPP::NodeValue>> m_writes;
    std::map<std::string, std::vector<std::string>> m_dependents;
    Observers m_observers;
    CvxCPP::DeviceState m_state = CvxCPP::DeviceState::Open;
    std::uint32_t m_reopenCount = 0;
};
