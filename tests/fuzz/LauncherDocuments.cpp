// Parses the launcher's configuration. The input is one JSON object that contains the three documents and a
// camera.

#include "camera/CameraInfo.h"
#include "config/LauncherConfig.h"
#include "tests/fuzz/FuzzTarget.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtGlobal>

#include <sanitizer/lsan_interface.h>

// Both functions are null in a program without a leak detector.
#pragma weak __lsan_disable
#pragma weak __lsan_enable

namespace {

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

/// Qt 5.15 leaks memory if an object has the same key twice, so leaks of this function are ignored.
QJsonObject parse(const QByteArray &text)
{
    if (__lsan_disable)
        __lsan_disable();
    QJsonObject object = QJsonDocument::fromJson(text).object();
    if (__lsan_enable)
        __lsan_enable();
    return object;
}

CameraInfo cameraOf(const QJsonObject &object)
{
    const auto text = [&object](const char *key) { return object.value(QLatin1String(key)).toString(); };
    CameraInfo camera;
    camera.vendorName = text("vendor");
    camera.modelName = text("model");
    camera.cameraName = text("name");
    camera.interfaceType = text("interface");
    return camera;
}

QSet<QString> toolIds(const QVector<ToolConfig> &tools)
{
    QSet<QString> ids;
    for (const ToolConfig &tool : tools)
        ids.insert(tool.id);
    return ids;
}

void requireTools(const LauncherConfig &config, const QString &platform)
{
    QSet<QString> executables;
    for (const ToolConfig &tool : config.allTools(platform)) {
        require(
            tool.platforms.isEmpty() || tool.platforms.contains(platform), "a tool supports the platform");
        if (tool.executable.isEmpty())
            continue;
        require(!executables.contains(tool.executable), "no executable appears twice");
        executables.insert(tool.executable);
    }
}

void requireConsistent(const LauncherConfig &config, const CameraInfo &camera)
{
    const QString platform = QStringLiteral("linux_x86_64");
    requireTools(config, platform);
    const HardwareGroupConfig group = config.findGroupForCamera(camera);
    require(!config.findThumbnailForCamera(camera).isEmpty(), "every camera has a picture");
    for (const QString &id : config.recommendedToolsIdsForCamera(group, camera, platform)) {
        require(toolIds(group.tools).contains(id), "a recommended tool belongs to the group");
        require(group.type != QLatin1String("highres")
                || config.isHalvexToolCompatibleWithCamera(camera.modelName, id),
            "a recommended tool is compatible with the model");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QtMessageHandler silenced = qInstallMessageHandler(ignoreMessage);
    Q_UNUSED(silenced)
    const QJsonObject input = parse(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    const auto document = [&input](const char *key) { return input.value(QLatin1String(key)).toObject(); };

    LauncherConfig config;
    requireConsistent(config, cameraOf(document("camera")));
    config.parseConfig(document("launcher"), document("reference"), document("compatibility"));
    requireConsistent(config, cameraOf(document("camera")));
    return 0;
}
