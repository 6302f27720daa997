#pragma once

#include "config/CameraThumbnailEntry.h"
#include "config/HardwareGroupConfig.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

class QJsonObject;
struct CameraInfo;

/// What the launcher knows of hardware groups, their tools, reference cameras and tool compatibility.
/// Filled once, then only read. Lookups never fail: missing data gives empty answers or a fallback picture.
class LauncherConfig
{
public:
    /// Reads the three embedded documents. To be called once: it adds to what is there.
    /// Documents whose versions disagree are logged and leave the configuration empty.
    void load();

    /// Fills the configuration from the three documents' root objects.
    void parseConfig(const QJsonObject &launcherConfig, const QJsonObject &camerasReference,
        const QJsonObject &compatibility);

    /// Adds the reference rows, longest model text first. Rows that lack a field are skipped with a warning.
    void buildThumbnailLookup(const QJsonObject &camerasReference);

    /// Adds the compatibility table: model code to the ids of the tools that fit it.
    void loadHalvexCompatibility(const QJsonObject &root);

    /// The camera's group, or an empty one when the configuration lacks the group that the rules choose.
    HardwareGroupConfig findGroupForCamera(const CameraInfo &camera) const;

    /// Resource path of the camera's picture; never empty, but not checked to exist.
    QString findThumbnailForCamera(const CameraInfo &camera) const;

    /// The tools of all groups that exist on the platform, each executable once, in display order.
    QVector<ToolConfig> allTools(const QString &platform) const;

    /// Ids of the group's tools that fit the camera and the platform.
    QSet<QString> recommendedToolsIdsForCamera(
        const HardwareGroupConfig &group, const CameraInfo &camera, const QString &platform) const;

    /// Whether the compatibility table lets the tool through; a model it does not know fits every tool.
    bool isHalvexToolCompatibleWithCamera(const QString &model, const QString &toolId) const;

private:
    /// The tools that the compatibility table has for the model; null for a model it does not know.
    const QSet<QString> *halvexTools(const QString &model) const;

    QMap<QString, HardwareGroupConfig> groups; // Keyed by the type in lower case.
    QVector<CameraThumbnailEntry> thumbnails; // Longest model first.
    QHash<QString, QSet<QString>> halvexCompatibility; // Model code as written.
};
