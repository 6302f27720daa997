#pragma once

#include "tests/kit/camera/TestDevice.h"

#include <map>
#include <memory>
#include <string>

/// Defines a camera with a lock, a selector, a feature of its own and two user sets. "UserSet1" contains
/// another width and the automatic exposure.
inline void defineUserSetCamera(TestDevice &camera)
{
    using namespace CvxCPP;
    using Values = std::map<std::string, NodeValue>;
    camera.add("Width", std::int64_t(640)).info.category = "ImageFormat";
    camera.feature("Width").info.displayName = "Image width";
    camera.feature("Width").info.unit = "px";
    camera.feature("Width").state.maximum = std::int64_t(1280);
    camera.addEntries("ExposureAuto", {"Off", "Continuous"}).info.category = "Acquisition";
    ScriptedDevice::Feature &time = camera.add("ExposureTime", 100.0);
    time.info.category = "Acquisition";
    time.rule = [&camera](NodeState &state) {
        if (camera.value("ExposureAuto") == NodeValue("Off"))
            return;
        state.lockReason = LockReason::LockedByNode;
        state.lockingNode = "ExposureAuto";
    };
    camera.addEntries("GainSelector", {"Tap1", "Tap2"});
    camera.add("Gain", 1.0).info.category = "Analog";
    camera.select("GainSelector", {"Gain"});
    camera.add("DeviceUserID", std::string("Left one"));

    const auto sets = std::make_shared<std::map<std::string, Values>>();
    (*sets)["Default"] = {{"Width", std::int64_t(640)}, {"ExposureAuto", std::string("Off")}};
    (*sets)["UserSet1"] = {{"Width", std::int64_t(320)}, {"ExposureAuto", std::string("Continuous")}};
    camera.addEntries("UserSetSelector", {"Default", "UserSet1"}).info.isStreamable = false;
    const auto set = [sets, &camera]() -> Values & {
        return (*sets)[std::get<std::string>(camera.value("UserSetSelector"))];
    };
    camera.addCommand("UserSetLoad").onWrite = [set, &camera](NodeValue &) {
        for (const auto &[name, value] : set())
            camera.set(name, value);
    };
    camera.addCommand("UserSetSave").onWrite = [set, &camera](NodeValue &) {
        for (auto &[name, value] : set())
            value = camera.value(name);
    };
}
