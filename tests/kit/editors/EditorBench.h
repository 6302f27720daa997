#pragma once

#include "tests/kit/camera/OpenableCamera.h"
#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/FeatureEditor.h"
#include "tools/kit/editors/StreamPauser.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

constexpr int hangTimeout = 10000; ///< Milliseconds; longer than anything takes that does not hang.

/// Adds an enumeration whose entries have names and display names.
ScriptedDevice::Feature &addChoice(
    ScriptedDevice &device, const std::string &name, const std::vector<std::string> &entries);

/// Adds a number with limits.
ScriptedDevice::Feature &addNumber(ScriptedDevice &device, const std::string &name,
    const CvxCPP::NodeValue &value, const CvxCPP::NodeValue &minimum, const CvxCPP::NodeValue &maximum);

/// An opened camera with a script, and its features.
class EditorBench
{
public:
    using Script = std::function<void(TestDevice &)>;

    /// Waits until the features are known.
    explicit EditorBench(const Script &script, CvxCPP::CvxAccess access = CvxCPP::CvxAccessControl);

    TestDevice &device() { return m_camera->device(); }
    CvxCPP::NodeValue value(const std::string &name);

    /// Returns a shown editor that knows the state of its feature.
    std::unique_ptr<FeatureEditor> show(const QString &name);

    /// Waits until all calls for the camera that were made before have ended.
    void waitForCalls();

private:
    std::shared_ptr<OpenableCamera> m_camera;

public:
    CameraConnection connection;
    FeatureClient client;
};

/// Notes that the stream was paused, and makes the call.
class TestPauser : public StreamPauser
{
public:
    explicit TestPauser(EditorBench &bench) : m_bench(bench) { }

    void pauseFor(CameraConnection::Call call, QObject *context, CameraConnection::Done done) override;

    int count = 0;
    std::function<void(ScriptedDevice &)> onStop; ///< What the end of the stream changes in the camera.

private:
    EditorBench &m_bench;
};
