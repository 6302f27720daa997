#include "tests/camerasetup/values/SetupBench.h"

using namespace CvxCPP;

void scriptSetupCamera(TestDevice &device)
{
    addNumber(device, "Width", std::int64_t(640), std::int64_t(16), std::int64_t(1280)).info.unit = "px";
    addNumber(device, "OffsetX", std::int64_t(0), std::int64_t(0), std::int64_t(600));
    addChoice(device, "ExposureAuto", {"Off", "Continuous"});
    addNumber(device, "ExposureTime", 10000.0, 10.0, 1e6).rule = [&device](NodeState &state) {
        if (device.value("ExposureAuto") == NodeValue("Off"))
            return;
        state.lockReason = LockReason::LockedByNode;
        state.lockingNode = "ExposureAuto";
    };
    addChoice(device, "GainSelector", {"All", "Red"});
    addNumber(device, "Gain", 1.0, 0.0, 24.0);
    device.select("GainSelector", {"Gain"});
    device.setDependents("GainSelector", {"Gain"});
    addChoice(device, "LUTSelector", {"Red", "Green"});
    addNumber(device, "LUTIndex", std::int64_t(1), std::int64_t(0), std::int64_t(1));
    addNumber(device, "LUTValue", std::int64_t(7), std::int64_t(0), std::int64_t(255));
    device.select("LUTSelector", {"LUTIndex", "LUTValue"});
    device.select("LUTIndex", {"LUTValue"});
    device.setDependents("LUTSelector", {"LUTIndex", "LUTValue"});
    device.add("DeviceTemperature", 40.0);
    device.add("DeviceUserID", std::string()).info.isStreamable = false;
    device.addCommand("UserSetLoad");
}

SetupBench::SetupBench(const EditorBench::Script &script)
    : bench(script),
      selectors(bench.client),
      jobs(bench.connection),
      opening(bench.client, selectors),
      history(bench.client, jobs, selectors, opening)
{ }

void SetupBench::write(const QString &name, const NodeValue &value)
{
    bench.client.watch({name});
    waitUntilTrue([&] { return bench.client.state(name) && selectors.of(name.toStdString()); });
    QSignalSpy written(&bench.client, &FeatureClient::written);
    bench.client.write(name, value);
    waitUntilTrue([&] { return !written.isEmpty(); });
}

void SetupBench::waitUntilComplete()
{
    waitUntilTrue([this] { return opening.state() == OpeningSnapshot::State::Complete; });
}
