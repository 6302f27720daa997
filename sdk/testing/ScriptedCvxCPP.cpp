#include "sdk/testing/ScriptedCvxCPP.h"

#include <algorithm>
#include <mutex>

namespace CvxScripted {

using namespace CvxCPP;

namespace {

template <typename Observer>
using Observers = std::vector<std::shared_ptr<Observer>>;

/// The script, the recorded calls and the registered observers. Calls arrive on the GUI thread and on pool
/// threads.
struct State
{
    Script script; // The mutex does not protect the script; see script().
    std::mutex mutex; // Protects the members below.
    std::vector<Call> calls;
    Observers<ICameraListObserver> cameraObservers;
    Observers<IInterfaceListObserver> interfaceObservers;
};

State &state()
{
    static State instance;
    return instance;
}

class ScriptedSystem : public CvxSystem
{
public:
    CvxError Startup() override { return answer({Function::Startup}); }

    CvxError Shutdown() override
    {
        const CvxError error = answer({Function::Shutdown});
        const std::lock_guard<std::mutex> lock(state().mutex);
        state().cameraObservers.clear();
        state().interfaceObservers.clear();
        return error;
    }

    CvxError RegisterCameraListObserver(const std::shared_ptr<ICameraListObserver> &observer) override
    {
        return add(Function::RegisterCameraListObserver, state().cameraObservers, observer);
    }

    CvxError RegisterInterfaceListObserver(const std::shared_ptr<IInterfaceListObserver> &observer) override
    {
        return add(Function::RegisterInterfaceListObserver, state().interfaceObservers, observer);
    }

    CvxError GetCameras(std::shared_ptr<Camera> *cameras, unsigned &count) override
    {
        return cameras ? fillCameras(cameras, count) : countCameras(count);
    }

private:
    template <typename Observer>
    static CvxError add(
        Function function, Observers<Observer> &observers, const std::shared_ptr<Observer> &observer)
    {
        if (const CvxError error = answer({function}))
            return error;
        const std::lock_guard<std::mutex> lock(state().mutex);
        observers.push_back(observer);
        return CvxErrorSuccess;
    }

    static CvxError countCameras(unsigned &count)
    {
        if (const CvxError error = answer({Function::CountCameras}))
            return error;
        const Script &script = state().script;
        count = script.countedCameras.value_or(static_cast<unsigned>(script.cameras.size()));
        return CvxErrorSuccess;
    }

    static CvxError fillCameras(std::shared_ptr<Camera> *cameras, unsigned &count)
    {
        if (const CvxError error = answer({Function::FillCameras}))
            return error;
        const Script &script = state().script;
        const unsigned known = static_cast<unsigned>(script.cameras.size());
        const unsigned written = std::min({count, known, script.filledCameras.value_or(known)});
        for (unsigned i = 0; i < written; ++i)
            cameras[i] = script.cameras[i].nullHandle ? nullptr : makeCamera(script.cameras[i]);
        count = script.filledCameras.value_or(written);
        return CvxErrorSuccess;
    }
};

/// Calls `notify` for each observer on a new thread, because the SDK never notifies an observer
/// on the thread of a caller.
template <typename Observer, typename Notify>
void announce(const Observers<Observer> &observers, const Notify &notify)
{
    const auto current = [&] {
        const std::lock_guard<std::mutex> lock(state().mutex);
        return observers;
    }();
    for (const std::shared_ptr<Observer> &observer : current)
        std::thread([&] { notify(*observer); }).join();
}

} // namespace

CvxError answer(Call call)
{
    call.thread = std::this_thread::get_id();
    {
        const std::lock_guard<std::mutex> lock(state().mutex);
        state().calls.push_back(call);
    }
    const Script &script = state().script;
    if (const CvxError error = script.intercept ? script.intercept(call) : CvxErrorSuccess)
        return error;
    const auto error = script.errors.find(call.function);
    return error == script.errors.end() ? CvxErrorSuccess : error->second;
}

Script &script()
{
    return state().script;
}

void reset()
{
    state().script = Script();
    const std::lock_guard<std::mutex> lock(state().mutex);
    state().calls.clear();
    state().cameraObservers.clear();
    state().interfaceObservers.clear();
}

std::vector<Call> calls()
{
    const std::lock_guard<std::mutex> lock(state().mutex);
    return state().calls;
}

std::size_t callCount(Function function)
{
    const std::vector<Call> seen = calls();
    return static_cast<std::size_t>(std::count_if(
        seen.begin(), seen.end(), [function](const Call &call) { return call.function == function; }));
}

void announceCamera(const CameraRecord &record, UpdateTriggerType reason)
{
    announce(state().cameraObservers,
        [&](auto &observer) { observer.CameraListChanged(makeCamera(record), reason); });
}

void announceInterface(const std::shared_ptr<InterfaceRecord> &record, UpdateTriggerType reason)
{
    announce(state().interfaceObservers,
        [&](auto &observer) { observer.InterfaceListChanged(makeInterface(record), reason); });
}

} // namespace CvxScripted

CvxCPP::CvxSystem &CvxCPP::CvxSystem::GetInstance()
{
    static CvxScripted::ScriptedSystem system;
    return system;
}
