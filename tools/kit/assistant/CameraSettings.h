#pragma once

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/widgets/CollapsibleGroup.h"

#include <QStringList>
#include <QVector>

class FeatureEditor;
class FeatureRow;
class StreamPauser;

/// Some settings of the camera, to be changed beside a measurement. Shows those that the camera has, and
/// hides itself if it has none of them.
class CameraSettings : public CollapsibleGroup
{
    Q_OBJECT

public:
    /// The objects must outlive the widget.
    /// @param names Features, for example "ExposureTime"; shown in this order.
    CameraSettings(
        const QStringList &names, FeatureClient &client, StreamPauser &pauser, QWidget *parent = nullptr);

private:
    void createRows();
    void onFound(FeatureEditor *editor);

    const QStringList m_names;
    FeatureClient &m_client;
    StreamPauser &m_pauser;
    QVector<FeatureRow *> m_rows;
};
