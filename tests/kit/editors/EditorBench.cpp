#include "tests/kit/editors/EditorBench.h"

#include "tools/kit/editors/FeatureEditors.h"

#include <QtTest>

using namespace CvxCPP;

namespace {

std::shared_ptr<OpenableCamera> makeCamera(const EditorBench::Script &script)
{
    auto camera = std::make_shared<OpenableCamera>("CAM-1");
    script(camera->device());
    return camera;
}

template <typename Condition>
void waitUntil(const Condition &condition)
{
    if (!QTest::qWaitFor(condition, hangTimeout))
        qFatal("The camera of the test does not answer.");
}

} // namespace

ScriptedDevice::Feature &addChoice(
    ScriptedDevice &device, const std::string &name, const std::vector<std::string> &entries)
{
    ScriptedDevice::Feature &feature = device.addEntries(name, entries);
    for (const std::string &entry : entries)
        feature.info.entries.push_back({entry, entry + " shown", 0});
    return feature;
}

ScriptedDevice::Feature &addNumber(ScriptedDevice &device, const std::string &name, const NodeValue &value,
    const NodeValue &minimum, const NodeValue &maximum)
{
    ScriptedDevice::Feature &feature = device.add(name, value);
    feature.state.minimum = minimum;
    feature.state.maximum = maximum;
    return feature;
}

EditorBench::EditorBench(const Script &script, CvxAccess access)
    : m_camera(makeCamera(script)), client(connection)
{
    QSignalSpy loaded(&client, &FeatureClient::nodesLoaded);
    connection.open(OpenableCamera::entry(m_camera), access);
    waitUntil([&loaded] { return !loaded.isEmpty(); });
}

NodeValue EditorBench::value(const std::string &name)
{
    return device().change([&name](ScriptedDevice &script) { return script.value(name); });
}

std::unique_ptr<FeatureEditor> EditorBench::show(const QString &name)
{
    std::unique_ptr<FeatureEditor> editor(createFeatureEditor(*client.info(name), client));
    editor->show();
    waitUntil([this, &name] { return client.state(name) != nullptr; });
    return editor;
}

void EditorBench::waitForCalls()
{
    bool isDone = false;
    QObject context;
    connection.run(
        [](Device &) { return CvxResult(); }, &context, [&isDone](const CvxResult &) { isDone = true; });
    waitUntil([&isDone] { return isDone; });
}

void TestPauser::pauseFor(CameraConnection::Call call, QObject *context, CameraConnection::Done done)
{
    ++count;
    if (onStop)
        m_bench.device().change(onStop);
    m_bench.connection.run(std::move(call), context, std::move(done));
}
