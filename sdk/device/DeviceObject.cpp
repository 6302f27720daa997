#include "sdk/device/DeviceObject.h"

#include "sdk/device/NodeRequests.h"
#include "sdk/device/NodeText.h"
#include "sdk/device/StreamObject.h"
#include "sdk/device/TemporaryRequests.h"

#include <utility>

using namespace CvxCPP;

DeviceObject::DeviceObject(std::shared_ptr<DeviceCore> core) : m_core(std::move(core)) { }

DeviceObject::~DeviceObject()
{
    if (m_core->isForked())
        new std::shared_ptr<DeviceCore>(m_core); // See isForked().
    else
        m_core->close();
}

CvxResult DeviceObject::GetNodes(std::vector<NodeInfo> &nodes) const
{
    return m_core->results.guarded([&]() -> CvxResult {
        if (m_core->gate.state() == DeviceState::Closed)
            return m_core->refusal();
        nodes = m_core->directory()->nodes();
        return {};
    });
}

CvxResult DeviceObject::ReadStates(const std::vector<std::string> &names, std::vector<NodeState> &states)
{
    return m_core->results.guarded([&] { return NodeRequests(*m_core).readStates(names, states); });
}

CvxResult DeviceObject::Read(const std::string &name, NodeValue &value)
{
    return m_core->results.guarded([&] { return NodeRequests(*m_core).read(name, value); });
}

CvxResult DeviceObject::Write(const std::string &name, const NodeValue &value)
{
    return m_core->results.guarded([&] { return NodeRequests(*m_core).write(name, value); });
}

CvxResult DeviceObject::Execute(const std::string &name)
{
    return m_core->results.guarded([&] { return NodeRequests(*m_core).execute(name); });
}

CvxResult DeviceObject::ReadText(const std::string &name, std::string &text)
{
    NodeValue value;
    CvxResult result = Read(name, value);
    if (result)
        text = nodeText(value);
    return result;
}

CvxResult DeviceObject::WriteText(const std::string &name, const std::string &text)
{
    return m_core->results.guarded([&] { return NodeRequests(*m_core).writeText(name, text); });
}

CvxResult DeviceObject::BeginTemporaryChanges()
{
    return m_core->results.guarded([&] { return TemporaryRequests(*m_core).begin(); });
}

CvxResult DeviceObject::EndTemporaryChanges(TemporaryChanges how)
{
    return m_core->results.guarded([&] { return TemporaryRequests(*m_core).end(how); });
}

CvxResult DeviceObject::StartStream(unsigned buffers, StreamPolicy policy, std::shared_ptr<Stream> &stream)
{
    return m_core->results.guarded([&] { return StreamObject::start(m_core, buffers, policy, stream); });
}

CvxResult DeviceObject::AddObserver(const std::shared_ptr<IDeviceObserver> &observer)
{
    return m_core->results.guarded([&]() -> CvxResult {
        if (!observer)
            return m_core->results.result(CvxErrorInvalidParameter, "The observer is null.");
        if (m_core->gate.state() == DeviceState::Closed)
            return m_core->refusal();
        m_core->notifier.add(observer);
        return {};
    });
}

CvxResult DeviceObject::RemoveObserver(const std::shared_ptr<IDeviceObserver> &observer)
{
    m_core->notifier.remove(observer);
    return {};
}

DeviceState DeviceObject::GetState(std::uint32_t &reopenCount) const
{
    return m_core->gate.state(reopenCount);
}

CvxResult DeviceObject::Close()
{
    if (m_core->notifier.isCalledByObserver())
        return m_core->results.result(CvxErrorFailed, "An observer cannot close its camera.");
    m_core->close();
    return {};
}
