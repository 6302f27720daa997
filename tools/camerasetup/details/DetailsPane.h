#pragma once

#include "tools/kit/camera/FeatureClient.h"

#include <QString>
#include <QWidget>

class ChangeHistory;
class Favourites;
class OpeningSnapshot;
class PresentSelectors;
class StreamPauser;

/// Everything about one feature: its path, its editor in full size with the reason if it is locked, what the
/// camera says of it (description, type, unit, limits, increment, access, visibility, representation,
/// selectors, what it selects, what it depends on or is locked by), its name for programs (copy), the value
/// at opening (set back), and a mark for favourites. A category shows its description and what it contains.
class DetailsPane : public QWidget
{
    Q_OBJECT

public:
    /// What the pane works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        const PresentSelectors &selectors;
        const OpeningSnapshot &opening;
        ChangeHistory &history;
        Favourites &favourites;
    };

    explicit DetailsPane(const Parts &parts, QWidget *parent = nullptr);

    /// Allows changes that need a stopped stream.
    void setStreamPauser(StreamPauser *pauser);

    QString feature() const;

public slots:
    /// Shows a feature; an empty name or an unknown one shows a hint. The feature is kept while the camera is
    /// lost, and when another camera has a feature of this name.
    void setFeature(const QString &name);

signals:
    /// A person wants to see another feature, for example the one that locks this one.
    void featureRequested(const QString &name);

    /// A person wants to see the values of all selector values side by side.
    void tableRequested(const QString &name);
};
