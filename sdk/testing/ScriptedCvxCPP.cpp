#include "sdk/testing/ScriptedCvxCPP.h"
#include "sdk/testing/Answer.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

namespace CvxScripted {

using namespace CvxCPP;

namespace {

/// What happened, behind one lock: calls come from the GUI thread and from scans.
struct State
{
    Script script; // Not under the lock: see script().
    std::mutex mutex;
    std::condition_variable called;
    std::vector<Call> calls;
    std::vector<std::shared_ptr<ICameraListObserver>> cameraObservers;
    std::vector<std::shared_ptr<IInterfaceListObserver>> interfaceObservers;
};

State &state()
{
    static State instance;
    return instance;
}

std::size_t countCalls(const std::vector<Call> &calls, Function function)
{
    return static_cast<std::size_t>(std::count_if(
        calls.begin(), calls.end(), [function](const Call &call) { return call.function == function; }));
}

} // namespace

CvxError answer(Call call)
{
    call.thread = std::this_thread::get_id();
    {
        const std::lock_guard<std::mutex> lock(state().mutex);
        state().calls.push_back(call);
        state().called.notify_all();
    }
    const Script &script = state().script;
    if (script.intercept) {
        if (const CvxError error = script.intercept(call))
            return error;
    }
    const auto error = script.errors.find(call.function);
    return error == script.errors.end() ? CvxErrorSuccess : error->second;
}

namespace {

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
        return cameras ? fill(cameras, count) : tellCount(count);
    }

private:
    template <typename Observer>
    static CvxError add(Function function, std::vector<std::shared_ptr<Observer>> &observers,
        const std::shared_ptr<Observer> &observer)
    {
        if (const CvxError error = answer({function}))
            return error;
        const std::lock_guard<std::mutex> lock(state().mutex);
        observers.push_back(observer);
        return CvxErrorSuccess;
    }

    static CvxError tellCount(unsigned &count)
    {
        if (const CvxError error = answer({Function::CountCameras}))
            return error;
        const Script &script = state().script;
        count = script.countedCameras.value_or(static_cast<unsigned>(script.cameras.size()));
        return CvxErrorSuccess;
    }

    static CvxError fill(std::shared_ptr<Camera> *cameras, unsigned &count)
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

/// Calls `notify` with each observer on a thread of its own, as the SDK does: never on the caller's.
template <typename Observer, typename Notify>
void announce(const std::vector<std::shared_ptr<Observer>> &observers, const Notify &notify)
{
    std::vector<std::shared_ptr<Observer>> current;
    {
        const std::lock_guard<std::mutex> lock(state().mutex);
        current = observers;
    }
    for (const std::shared_ptr<Observer> &observer : current)
        std::thread([&] { notify(*observer); }).join();
}

} // namespace

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
    const std::lock_guard<std::mutex> lock(state().mutex);
    return countCalls(state().calls, function);
}

bool waitForCalls(Function function, std::size_t count, std::chrono::milliseconds bound)
{
    std::unique_lock<std::mutex> lock(state().mutex);
    return state().called.wait_for(lock, bound, [&] { return countCalls(state().calls, function) >= count; });
}

void announceCamera(const CameraRecord &record, UpdateTriggerType reason)
{
    announce(state().cameraObservers,
        [&](ICameraListObserver &observer) { observer.CameraListChanged(makeCamera(record), reason); });
}

void announceInterface(const std::shared_ptr<InterfaceRecord> &record, UpdateTriggerType reason)
{
    announce(state().interfaceObservers, [&](IInterfaceListObserver &observer) {
        observer.InterfaceListChanged(makeInterface(record), reason);
    });
}

std::size_t observerCount()
{
    const std::lock_guard<std::mutex> lock(state().mutex);
    return state().cameraObservers.size() + state().interfaceObservers.size();
}

} // namespace CvxScripted

CvxCPP::CvxSystem &CvxCPP::CvxSystem::GetInstance()
{
    static CvxScripted::ScriptedSystem system;
    return system;
}
