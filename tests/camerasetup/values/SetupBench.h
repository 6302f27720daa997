#pragma once

#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/values/ChangeHistory.h"

#include <QtTest>

/// A camera with selectors, an automatic function, a text and a command, which has 11 settings:
/// - Width, OffsetX, ExposureAuto, ExposureTime, which ExposureAuto locks
/// - Gain for the values All and Red of GainSelector
/// - LUTValue for the values 0 and 1 of LUTIndex, both for the values Red and Green of LUTSelector
/// - DeviceTemperature, which changes by itself
/// - DeviceUserID, which belongs into no settings file, and the command UserSetLoad
void scriptSetupCamera(TestDevice &device);

/// An opened camera with its snapshot and its history.
class SetupBench
{
public:
    explicit SetupBench(const EditorBench::Script &script = scriptSetupCamera);

    TestDevice &device() { return bench.device(); }

    /// Waits until the feature was read, writes it and waits until the camera has accepted it.
    void write(const QString &name, const CvxCPP::NodeValue &value);

    /// Waits until everything was read, including what the camera has reported as changed.
    void waitUntilComplete();

    EditorBench bench;
    PresentSelectors selectors;
    CameraJobs jobs;
    OpeningSnapshot opening;
    ChangeHistory history;
};

template <typename Condition>
void waitUntilTrue(const Condition &condition)
{
    if (!QTest::qWaitFor(condition, hangTimeout))
        qFatal("The camera of the test does not answer.");
}
