#pragma once

#include "config/CameraThumbnailEntry.h"
#include "config/HardwareGroupConfig.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

class QJsonObject;
struct CameraInfo;

/// Hardware groups with their tools, reference cameras with their pictures, and the tool compatibility table.
/// Filled once, then only read. Lookups never fail: they return an empty value or a fallback picture instead.
class LauncherConfig
{
public:
    /// Reads the three embedded documents. Call it once: it does not clear earlier contents.
    /// If the versions of the first two differ, logs that and leaves the configuration empty.
    void load();

    /// Fills the configuration from the three documents' root objects.
    void parseConfig(const QJsonObject &launcherConfig, const QJsonObject &camerasReference,
        const QJsonObject &compatibility);

    /// Adds the reference rows, longest model first. A row with an empty field is skipped with a warning.
    void buildThumbnailLookup(const QJsonObject &camerasReference);

    /// Adds the rows of the compatibility table: model code to the ids of the compatible tools.
    void loadHalvexCompatibility(const QJsonObject &root);

    /// Returns the camera's group; an empty group if the rules choose one that is not configured.
    HardwareGroupConfig findGroupForCamera(const CameraInfo &camera) const;

    /// Returns the resource path of the camera's picture. Never empty; the picture may be missing.
    QString findThumbnailForCamera(const CameraInfo &camera) const;

    /// Returns the tools of all groups that exist on the platform, each executable once, in display order.
    QVector<ToolConfig> allTools(const QString &platform) const;

    /// Returns the ids of the group's tools that fit the camera and the platform.
    QSet<QString> recommendedToolsIdsForCamera(
        const HardwareGroupConfig &group, const CameraInfo &camera, const QString &platform) const;

    /// Returns whether the tool fits the model. Every tool fits a model that the compatibility table lacks.
    bool isHalvexToolCompatibleWithCamera(const QString &model, const QString &toolId) const;

private:
    /// Returns the ids of the model's compatible tools; null for a model that the table lacks.
    const QSet<QString> *halvexTools(const QString &model) const;

    QMap<QString, HardwareGroupConfig> groups; // The key is the type in lower case.
    QVector<CameraThumbnailEntry> thumbnails; // Longest model first.
    QHash<QString, QSet<QString>> halvexCompatibility; // Model code as written, to tool ids.
};
