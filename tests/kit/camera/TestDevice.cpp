#include "tests/kit/camera/TestDevice.h"

#include <algorithm>
#include <thread>

using namespace CvxCPP;

void TestDevice::setDependents(const std::string &name, const std::vector<std::string> &dependents)
{
    const std::lock_guard lock(m_mutex);
    m_dependents[name] = dependents;
}

void TestDevice::setByCamera(const std::string &name, const NodeValue &value)
{
    change([&](ScriptedDevice &device) { device.set(name, value); });
    notifyNodes({name});
}

void TestDevice::notifyNodes(const std::vector<std::string> &names)
{
    // The SDK never notifies on the thread of a caller.
    std::thread([&] {
        for (const auto &observer : observers())
            observer->NodesChanged(names);
    }).join();
}

void TestDevice::lose(const std::string &reason)
{
    setState(DeviceState::Lost, reason);
    setState(DeviceState::Reopening, "The camera is being opened again.");
}

void TestDevice::reopen(const std::string &reason)
{
    {
        const std::lock_guard lock(m_mutex);
        ++m_reopenCount;
    }
    setState(DeviceState::Open, reason);
}

void TestDevice::setState(DeviceState state, const std::string &reason)
{
    {
        const std::lock_guard lock(m_mutex);
        m_state = state;
    }
    std::thread([&] {
        for (const auto &observer : observers())
            observer->StateChanged(state, reason);
    }).join();
}

bool TestDevice::isClosed() const
{
    const std::lock_guard lock(m_mutex);
    return m_state == DeviceState::Closed;
}

TestDevice::Observers TestDevice::observers() const
{
    const std::lock_guard lock(m_mutex);
    return m_observers;
}

std::vector<std::vector<std::string>> TestDevice::calls(const std::string &kind) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::vector<std::string>> found;
    for (const auto &[callKind, names] : m_calls) {
        if (callKind == kind)
            found.push_back(names);
    }
    return found;
}

std::vector<NodeValue> TestDevice::writtenValues(const std::string &name) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<NodeValue> values;
    for (const auto &[written, value] : m_writes) {
        if (written == name)
            values.push_back(value);
    }
    return values;
}

/// Records the call. Fails if the camera is not open.
CvxResult TestDevice::begin(const std::string &kind, const std::vector<std::string> &names) const
{
    {
        const std::lock_guard lock(m_mutex);
        m_calls.emplace_back(kind, names);
    }
    if (beforeCall)
        beforeCall(kind);
    const std::lock_guard lock(m_mutex);
    if (m_state == DeviceState::Closed)
        return {CvxErrorClosed, "The device is closed."};
    if (m_state != DeviceState::Open)
        return {CvxErrorDeviceLost, "The camera is lost."};
    return {};
}

CvxResult TestDevice::GetNodes(std::vector<NodeInfo> &nodes) const
{
    if (CvxResult result = begin("GetNodes", {}); !result)
        return result;
    const std::lock_guard lock(m_mutex);
    return ScriptedDevice::GetNodes(nodes);
}

CvxResult TestDevice::ReadStates(const std::vector<std::string> &names, std::vector<NodeState> &states)
{
    if (CvxResult result = begin("ReadStates", names); !result)
        return result;
    const std::lock_guard lock(m_mutex);
    return ScriptedDevice::ReadStates(names, states);
}

CvxResult TestDevice::Read(const std::string &name, NodeValue &value)
{
    if (CvxResult result = begin("Read", {name}); !result)
        return result;
    const std::lock_guard lock(m_mutex);
    return ScriptedDevice::Read(name, value);
}

CvxResult TestDevice::Write(const std::string &name, const NodeValue &value)
{
    if (CvxResult result = begin("Write", {name}); !result)
        return result;
    std::vector<std::string> dependents;
    {
        const std::lock_guard lock(m_mutex);
        if (CvxResult result = ScriptedDevice::Write(name, value); !result)
            return result;
        m_writes.emplace_back(name, value);
        dependents = m_dependents[name];
    }
    if (!dependents.empty())
        notifyNodes(dependents);
    return {};
}

CvxResult TestDevice::Execute(const std::string &name)
{
    if (CvxResult result = begin("Execute", {name}); !result)
        return result;
    const std::lock_guard lock(m_mutex);
    return ScriptedDevice::Execute(name);
}

CvxResult TestDevice::BeginTemporaryChanges()
{
    if (CvxResult result = begin("BeginTemporaryChanges", {}); !result)
        return result;
    const std::lock_guard lock(m_mutex);
    return ScriptedDevice::BeginTemporaryChanges();
}

CvxResult TestDevice::EndTemporaryChanges(TemporaryChanges how)
{
    if (CvxResult result = begin("EndTemporaryChanges", {}); !result)
        return result;
    const std::lock_guard lock(m_mutex);
    return ScriptedDevice::EndTemporaryChanges(how);
}

CvxResult TestDevice::AddObserver(const std::shared_ptr<IDeviceObserver> &observer)
{
    const std::lock_guard lock(m_mutex);
    m_observers.push_back(observer);
    return {};
}

CvxResult TestDevice::RemoveObserver(const std::shared_ptr<IDeviceObserver> &observer)
{
    const std::lock_guard lock(m_mutex);
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer), m_observers.end());
    return {};
}

DeviceState TestDevice::GetState(std::uint32_t &reopenCount) const
{
    const std::lock_guard lock(m_mutex);
    reopenCount = m_reopenCount;
    return m_state;
}

CvxResult TestDevice::Close()
{
    setState(DeviceState::Closed, "The program has closed the device.");
    const std::lock_guard lock(m_mutex);
    m_observers.clear();
    return {};
}
