#pragma once

#include "config/CameraThumbnailEntry.h"
#include "config/HardwareGroupConfig.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

class QJsonObject;
struct CameraInfo;

/// Contains the hardware groups with their tools, the reference cameras with their pictures, and the tool
/// compatibility table. A configuration is filled once and only read afterwards. Lookups never fail: they
/// return an empty value or a fallback picture instead.
class LauncherConfig
{
public:
    /// Reads the three embedded documents. Call this function once, because it does not clear earlier
    /// contents. If the versions of the first two documents differ, logs an error and leaves the
    /// configuration empty.
    void load();

    /// Fills the configuration from the three documents' root objects.
    void parseConfig(const QJsonObject &launcherConfig, const QJsonObject &camerasReference,
        const QJsonObject &compatibility);

    /// Adds the reference rows, longest model first. A row with an empty field is skipped with a warning.
    void buildThumbnailLookup(const QJsonObject &camerasReference);

    /// Adds the rows of the compatibility table, which map a model code to the ids of the compatible tools.
    void loadHalvexCompatibility(const QJsonObject &root);

    /// Returns the camera's group, or an empty group if the rules choose a group that is not configured.
    HardwareGroupConfig findGroupForCamera(const CameraInfo &camera) const;

    /// Returns the resource path of the camera's picture. The path is never empty, but the picture may be
    /// missing.
    QString findThumbnailForCamera(const CameraInfo &camera) const;

    /// Returns the tools for this platform from all groups in display order. Each executable occurs only
    /// once.
    QVector<ToolConfig> allTools(const QString &platform) const;

    /// Returns the ids of the group's tools that fit the camera and the platform.
    QSet<QString> recommendedToolsIdsForCamera(
        const HardwareGroupConfig &group, const CameraInfo &camera, const QString &platform) const;

    /// Returns true if the tool fits the model. Every tool fits a model that is not in the compatibility
    /// table.
    bool isHalvexToolCompatibleWithCamera(const QString &model, const QString &toolId) const;

private:
    /// Returns the ids of the model's compatible tools; null if the model is not in the table.
    const QSet<QString> *halvexTools(const QString &model) const;

    QMap<QString, HardwareGroupConfig> groups; // The key is the type in lower case.
    QVector<CameraThumbnailEntry> thumbnails; // Longest model first.
    QHash<QString, QSet<QString>> halvexCompatibility; // Maps model codes as written to tool ids.
};
