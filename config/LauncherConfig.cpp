#include "config/LauncherConfig.h"

#include "camera/CameraInfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtDebug>

#include <algorithm>

namespace {

const QLatin1String placeholderPicture(":/images/cameras/camera-placeholder.png");
const QLatin1String logoPicture(":/images/orvelle-logo.png");

/// Returns the document's root object; empty if the resource is missing, malformed or not an object.
QJsonObject loadJsonFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError || document.isNull())
        return {};
    return document.object();
}

/// Returns the document's root object. An unusable document is replaced by a document with version "1.0" and
/// an empty list.
QJsonObject loadOrEmpty(const QString &path, const QString &listKey)
{
    QJsonObject object = loadJsonFile(path);
    if (!object.isEmpty())
        return object;
    return {{QStringLiteral("version"), QStringLiteral("1.0")}, {listKey, QJsonArray()}};
}

QString stringField(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QStringList strings(const QJsonArray &array)
{
    QStringList result;
    for (const QJsonValue &value : array)
        result.append(value.toString());
    return result;
}

ToolConfig parseTool(const QJsonObject &object)
{
    ToolConfig tool;
    tool.id = stringField(object, "id");
    tool.name = stringField(object, "name");
    tool.executable = stringField(object, "executable");
    tool.description = stringField(object, "description");
    tool.platforms = strings(object.value(QLatin1String("platforms")).toArray());
    tool.transports = strings(object.value(QLatin1String("transports")).toArray());
    return tool;
}

HardwareGroupConfig parseGroup(const QJsonObject &object)
{
    HardwareGroupConfig group;
    group.type = stringField(object, "type");
    group.name = stringField(object, "name");
    group.brand = stringField(object, "brand");
    group.description = stringField(object, "description");
    const QJsonArray tools = object.value(QLatin1String("tools")).toArray();
    for (const QJsonValue &tool : tools)
        group.tools.append(parseTool(tool.toObject()));
    return group;
}

/// Returns true if the list is empty, or if it contains the value in any letter case. An empty value never
/// equals an entry of the list.
bool isEmptyOrContains(const QStringList &list, const QString &value)
{
    return list.isEmpty() || (!value.isEmpty() && list.contains(value, Qt::CaseInsensitive));
}

} // namespace

void LauncherConfig::load()
{
    const QJsonObject launcherConfig
        = loadOrEmpty(QStringLiteral(":/config/launcher_config.json"), QStringLiteral("hardwareGroups"));
    const QJsonObject camerasReference
        = loadOrEmpty(QStringLiteral(":/config/cameras_reference.json"), QStringLiteral("cameras"));
    const QJsonObject compatibility
        = loadOrEmpty(QStringLiteral(":/config/halvex_tool_compatibility.json"), QStringLiteral("cameras"));

    // Intended: the compatibility document's version is not compared.
    if (stringField(launcherConfig, "version") != stringField(camerasReference, "version")) {
        //: A log message. All log messages are in English, so do not translate it.
        qCritical().noquote() << QCoreApplication::translate(
            "LauncherConfig", "Configuration files version mismatch!");
        return;
    }
    parseConfig(launcherConfig, camerasReference, compatibility);
}

void LauncherConfig::parseConfig(
    const QJsonObject &launcherConfig, const QJsonObject &camerasReference, const QJsonObject &compatibility)
{
    const QJsonArray hardwareGroups = launcherConfig.value(QLatin1String("hardwareGroups")).toArray();
    for (const QJsonValue &value : hardwareGroups) {
        const HardwareGroupConfig group = parseGroup(value.toObject());
        groups.insert(group.type.toLower(), group);
    }
    buildThumbnailLookup(camerasReference);
    loadHalvexCompatibility(compatibility);
}

void LauncherConfig::buildThumbnailLookup(const QJsonObject &camerasReference)
{
    const QJsonArray rows = camerasReference.value(QLatin1String("cameras")).toArray();
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const QString model = stringField(row, "model");
        const QString thumbnail = stringField(row, "thumbnail");
        const QString type = stringField(row, "type");
        if (model.isEmpty() || thumbnail.isEmpty() || type.isEmpty()) {
            qWarning().noquote() << QStringLiteral(
                "Invalid entry in cameras_reference.json file (model: %1, type: %2, thumbnail: %3)")
                                        .arg(model, type, thumbnail);
            continue;
        }
        // Intended: the first seven characters are removed even if they are not "assets/".
        thumbnails.append({model, type, QStringLiteral(":/images/") + thumbnail.mid(7)});
    }
    // Every lookup takes the first match, so the most specific model has to come first.
    std::sort(thumbnails.begin(), thumbnails.end(),
        [](const CameraThumbnailEntry &left, const CameraThumbnailEntry &right) {
            return left.model.size() > right.model.size();
        });
}

void LauncherConfig::loadHalvexCompatibility(const QJsonObject &root)
{
    const QJsonObject cameras = root.value(QLatin1String("cameras")).toObject();
    for (auto entry = cameras.begin(); entry != cameras.end(); ++entry) {
        const QStringList tools = strings(entry.value().toObject().value(QLatin1String("tools")).toArray());
        halvexCompatibility.insert(entry.key(), QSet<QString>(tools.begin(), tools.end()));
    }
}

HardwareGroupConfig LauncherConfig::findGroupForCamera(const CameraInfo &camera) const
{
    const QString vendor = camera.vendorName.toLower();
    const QString model = camera.modelName.toLower();

    // The order of these rules matters. Vendors with a fixed group come before the reference rows, and the
    // rows come before the default group of the vendor "orvelle". If the group of the first matching rule is
    // not configured, the result is an empty group, and the later rules are not tried.
    if (vendor.contains(QLatin1String("orvelle")) && model.contains(QLatin1String("simulator")))
        return groups.value(QStringLiteral("simulator"));
    if (vendor.contains(QLatin1String("kordane")))
        return groups.value(QStringLiteral("highres"));
    if (vendor.contains(QLatin1String("lintaro")))
        return groups.value(QStringLiteral("linescan"));
    for (const CameraThumbnailEntry &row : thumbnails) {
        if (model.contains(row.model.toLower()))
            return groups.value(row.type);
    }
    if (vendor.contains(QLatin1String("orvelle")))
        return groups.value(QStringLiteral("areascan"));
    return groups.value(QStringLiteral("other"));
}

QString LauncherConfig::findThumbnailForCamera(const CameraInfo &camera) const
{
    const QString type = findGroupForCamera(camera).type;
    if (type == QLatin1String("simulator"))
        return logoPicture;
    if (type.isEmpty() || type == QLatin1String("other"))
        return placeholderPicture;

    const QString model = camera.modelName.toLower();
    const QString searchText = model + QLatin1Char(' ') + camera.cameraName.toLower();
    for (const CameraThumbnailEntry &row : thumbnails) {
        // Intended: a row also matches if it contains the camera's model, or if the camera's name contains
        // the row.
        const QString rowModel = row.model.toLower();
        if (searchText.contains(rowModel) || rowModel.contains(model))
            return row.thumbnail;
    }
    return type == QLatin1String("areascan") ? logoPicture : placeholderPicture;
}

QVector<ToolConfig> LauncherConfig::allTools(const QString &platform) const
{
    QVector<ToolConfig> result;
    QSet<QString> seen;
    for (const HardwareGroupConfig &group : groups) {
        for (const ToolConfig &tool : group.tools) {
            const QString key = tool.executable.isEmpty() ? tool.id : tool.executable;
            if (seen.contains(key))
                continue;
            // Intended: a tool that is hidden on this platform also hides the same executable in later
            // groups.
            seen.insert(key);
            if (tool.platforms.isEmpty() || tool.platforms.contains(platform))
                result.append(tool);
        }
    }
    return result;
}

QSet<QString> LauncherConfig::recommendedToolsIdsForCamera(
    const HardwareGroupConfig &group, const CameraInfo &camera, const QString &platform) const
{
    const bool isHighRes = group.type == QLatin1String("highres");
    const QSet<QString> *compatible = isHighRes ? halvexTools(camera.modelName) : nullptr;
    QSet<QString> ids;
    for (const ToolConfig &tool : group.tools) {
        // Intended: this function ignores the letter case of the platform, but allTools() does not.
        if (!isEmptyOrContains(tool.transports, camera.interfaceType)
            || !isEmptyOrContains(tool.platforms, platform))
            continue;
        if (!compatible || compatible->contains(tool.id))
            ids.insert(tool.id);
    }
    return ids;
}

bool LauncherConfig::isHalvexToolCompatibleWithCamera(const QString &model, const QString &toolId) const
{
    const QSet<QString> *tools = halvexTools(model);
    return !tools || tools->contains(toolId);
}

const QSet<QString> *LauncherConfig::halvexTools(const QString &model) const
{
    for (auto entry = halvexCompatibility.begin(); entry != halvexCompatibility.end(); ++entry) {
        if (entry.key().compare(model, Qt::CaseInsensitive) == 0)
            return &entry.value();
    }
    return nullptr;
}
