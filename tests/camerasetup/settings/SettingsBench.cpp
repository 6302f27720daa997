#include "tests/camerasetup/settings/SettingsBench.h"

#include <QTreeView>
#include <QtTest>

#include <map>

using namespace CvxCPP;

namespace {

/// Adds the user sets "Default", which cannot be saved, and "UserSet0", which contains another width.
void addUserSets(TestDevice &camera)
{
    const auto widths = std::make_shared<std::map<std::string, NodeValue>>();
    (*widths)["Default"] = std::int64_t(640);
    (*widths)["UserSet0"] = std::int64_t(320);
    addChoice(camera, "UserSetSelector", {"Default", "UserSet0"}).info.isStreamable = false;
    camera.feature("UserSetSelector").info.displayName = "User Set Selector";
    const auto width = [widths, &camera]() -> NodeValue & {
        return (*widths)[std::get<std::string>(camera.value("UserSetSelector"))];
    };
    camera.addCommand("UserSetLoad").onWrite
        = [width, &camera](NodeValue &) { camera.set("Width", width()); };
    ScriptedDevice::Feature &save = camera.addCommand("UserSetSave");
    save.onWrite = [width, &camera](NodeValue &) { width() = camera.value("Width"); };
    save.rule = [&camera](NodeState &state) {
        if (camera.value("UserSetSelector") != NodeValue("Default"))
            return;
        state.lockReason = LockReason::LockedByNode;
        state.lockingNode = "UserSetSelector";
    };
    addChoice(camera, "UserSetDefault", {"Default", "UserSet0"}).info.isStreamable = false;
    camera.setDependents("UserSetDefault", {"UserSetDefault"});
}

} // namespace

SettingsBench::SettingsBench(const EditorBench::Script &script, CvxAccess access)
    : camera(script, access), pauser(camera)
{
    jobs.setStreamPauser(&pauser);
    if (!QTest::qWaitFor([this] { return opening.state() == OpeningSnapshot::State::Complete; }, hangTimeout))
        qFatal("The settings at opening are not read.");
}

void defineSettingsCamera(TestDevice &camera)
{
    addNumber(camera, "Width", std::int64_t(640), std::int64_t(16), std::int64_t(1280)).onWrite
        = [&camera](
              NodeValue &) { camera.set("FrameRate", 50.0); }; // Cameras change such values by themselves.
    camera.add("FrameRate", 25.0);
    addChoice(camera, "ExposureAuto", {"Off", "Continuous"});
    camera.add("ExposureTime", 10000.0).rule = [&camera](NodeState &state) {
        if (camera.value("ExposureAuto") == NodeValue("Off"))
            return;
        state.lockReason = LockReason::LockedByNode;
        state.lockingNode = "ExposureAuto";
    };
    addChoice(camera, "GainSelector", {"Tap1", "Tap2"});
    camera.add("Gain", 1.0);
    camera.select("GainSelector", {"Gain"});
    camera.add("Stubborn", std::int64_t(1)).onWrite = [](NodeValue &value) { value = std::int64_t(1); };
    camera.add("DeviceUserID", std::string());
    camera.add("Temperature", 40.0).info.isStreamable = false;
    camera.feature("Temperature").state.access = NodeAccess::ReadOnly;
    camera.feature("Temperature").state.lockReason = LockReason::ReadOnlyNode;
    addUserSets(camera);
}

FeatureFile parsedFile(const QByteArray &text)
{
    return std::get<FeatureFile>(parseFeatureFile(text.toStdString()));
}

QStringList tableRows(const LoadDialog &dialog)
{
    const QAbstractItemModel &model = *child<QTreeView>(dialog, "table")->model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(row, column).data().toString());
        rows.append(texts.join(QLatin1Char('|')));
    }
    return rows;
}
