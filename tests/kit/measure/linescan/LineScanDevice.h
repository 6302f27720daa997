#pragma once

#include "tests/features/ScriptedDevice.h"

#include <algorithm>

/// A line scan camera in memory: a line is never shorter than the exposure and 2 µs, and never shorter than
/// 8 µs, which the camera shows only if the exposure is short.
class LineScanDevice : public ScriptedDevice
{
public:
    LineScanDevice()
    {
        addEntries("DeviceScanType", {"Linescan", "Areascan"});
        add("Width", std::int64_t(4096));
        add("Height", std::int64_t(1000));
        addEntries("PixelFormat", {"Mono8", "Mono12"});
        add("DeviceLinkSpeed", std::int64_t(1'000'000'000));
        add("ExposureTime", 50.0).state.minimum = 2.0;
        addRate();
        add("AcquisitionLineRateEnable", false);
        addEntries("TriggerSelector", {"FrameStart", "LineStart"});
        addEntries("TriggerMode", {"Off", "On"});
        addEntries("TriggerSource", {"Software", "Line0", "Encoder0"});
        addEntries("TriggerActivation", {"AnyEdge", "RisingEdge"});
        addFactor("TriggerDivider", 16);
        addFactor("TriggerMultiplier", 8);
        select("TriggerSelector",
            {"TriggerMode", "TriggerSource", "TriggerActivation", "TriggerDivider", "TriggerMultiplier"});
        addEntries("EncoderSelector", {"Encoder0", "Encoder1"});
        addEntries("EncoderSourceA", {"Off", "Line0", "Line1"});
        addEntries("EncoderSourceB", {"Off", "Line0", "Line1"});
        addEntries("EncoderMode", {"FourPhase", "HighResolution"});
        addFactor("EncoderDivider", 64);
        add("EncoderResolution", 0.5);
        select("EncoderSelector",
            {"EncoderSourceA", "EncoderSourceB", "EncoderMode", "EncoderDivider", "EncoderResolution"});
    }

private:
    void addRate()
    {
        Feature &rate = add("AcquisitionLineRate", 10'000.0);
        rate.state.minimum = 1.0;
        rate.state.increment = 0.5;
        rate.rule = [this](CvxCPP::NodeState &state) {
            const double line = std::max(8.0, std::get<double>(value("ExposureTime")) + 2);
            state.maximum = 1e6 / line;
        };
    }

    void addFactor(const std::string &name, std::int64_t max)
    {
        Feature &factor = add(name, std::int64_t(1));
        factor.state.minimum = std::int64_t(1);
        factor.state.maximum = max;
        factor.state.increment = std::int64_t(1);
    }
};
