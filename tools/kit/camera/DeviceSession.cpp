#include "tools/kit/camera/DeviceSession.h"

#include <utility>

using namespace CvxCPP;

class DeviceSession::Observer : public IDeviceObserver
{
public:
    explicit Observer(const Events &events) : m_events(events) { }

    void NodesChanged(const std::vector<std::string> &names) override { m_events.nodesChanged(names); }
    void StateChanged(DeviceState state, const std::string &reason) override
    {
        m_events.stateChanged(state, reason);
    }

private:
    const Events m_events;
};

DeviceSession::DeviceSession(std::shared_ptr<Camera> camera, CvxAccess access, Events events)
    : m_events(std::move(events))
{
    m_calls.post([this, camera = std::move(camera), access] { open(*camera, access); });
}

DeviceSession::~DeviceSession()
{
    close();
}

void DeviceSession::close()
{
    if (!m_isClosing.exchange(true))
        m_calls.post([this] { end(); });
}

void DeviceSession::run(Call call, Done done)
{
    m_calls.post([this, call = std::move(call), done = std::move(done)] {
        done(m_device && !m_isClosing ? call(*m_device)
                                      : CvxResult{CvxErrorClosed, "The camera is not open."});
    });
}

void DeviceSession::open(Camera &camera, CvxAccess access)
{
    if (m_isClosing)
        return;
    std::shared_ptr<Device> device;
    const CvxResult result = camera.Open(access, device);
    m_device = result ? device : nullptr;
    if (m_isClosing)
        return; // Nobody waits for the result any more.
    m_events.opened(result, m_device);
    if (!m_device)
        return;
    // The result is ignored: a device that was closed meanwhile reports that to every call.
    static_cast<void>(m_device->AddObserver(std::make_shared<Observer>(m_events)));
    std::uint32_t reopenCount = 0;
    const DeviceState state = m_device->GetState(reopenCount);
    if (state != DeviceState::Open) // It was lost before the observer was registered.
        m_events.stateChanged(state, {});
}

void DeviceSession::end()
{
    if (m_device)
        static_cast<void>(m_device->Close()); // Closed in any case.
    m_device.reset();
    m_events.ended();
}
