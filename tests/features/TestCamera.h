#pragma once

#include "tests/features/ScriptedDevice.h"

/// A camera with limits, locks and selectors as real cameras have them.
class TestCamera : public ScriptedDevice
{
public:
    TestCamera()
    {
        addSize("Width", "OffsetX", 640);
        addSize("OffsetX", "Width", 0);
        addEntries("ExposureAuto", {"Off", "Continuous"});
        lockBy("ExposureAuto", add("ExposureTime", 10000.0));
        add("ReverseX", false);
        addEntries("TriggerSelector", {"FrameStart", "LineStart"});
        addEntries("TriggerMode", {"Off", "On"});
        select("TriggerSelector", {"TriggerMode"});
        addEntries("LUTSelector", {"Red", "Green"});
        Feature &index = add("LUTIndex", std::int64_t(1));
        index.state.minimum = std::int64_t(0);
        index.state.maximum = std::int64_t(1);
        add("LUTValue", std::int64_t(7));
        select("LUTSelector", {"LUTIndex", "LUTValue"});
        select("LUTIndex", {"LUTValue"});
        Feature &serial = add("DeviceSerialNumber", std::string("1001"));
        serial.info.isStreamable = false;
        serial.state.access = CvxCPP::NodeAccess::ReadOnly;
        serial.state.lockReason = CvxCPP::LockReason::ReadOnlyNode;
    }

    /// Locks a feature while the automatic function is not "Off".
    void lockBy(const std::string &name, Feature &feature)
    {
        feature.rule = [this, name](CvxCPP::NodeState &state) {
            if (value(name) == CvxCPP::NodeValue("Off"))
                return;
            state.lockReason = CvxCPP::LockReason::LockedByNode;
            state.lockingNode = name;
        };
    }

private:
    /// Adds one of two features whose sum is limited.
    void addSize(const std::string &name, const std::string &other, std::int64_t initial)
    {
        Feature &feature = add(name, initial);
        feature.state.minimum = std::int64_t(0);
        feature.rule = [this, other](CvxCPP::NodeState &state) {
            state.maximum = 1280 - std::get<std::int64_t>(value(other));
        };
    }
};
