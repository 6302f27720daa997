#pragma once

#include "tools/kit/camera/FeatureClient.h"

#include <QHash>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <array>

class CollapsibleGroup;
class FeatureEditor;
class EditorNote;
class FeatureRow;
class QLabel;
class QSettings;
class QVBoxLayout;
class StreamPauser;
struct PanelGroup;

/// The features of the connected camera that most people need, in groups that can be closed. Only what the
/// camera implements appears, under whichever name the camera has it.
class CameraPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CameraPanel(FeatureClient &client, QWidget *parent = nullptr);

    /// Allows changes that need a stopped stream; without a pauser, such features are locked. The pauser must
    /// outlive the panel.
    void setStreamPauser(StreamPauser *pauser);

    /// Returns the editor of a feature; null if the panel does not show the feature.
    FeatureEditor *editor(const QString &feature) const;

    void saveState(QSettings &settings) const; ///< Which groups are open.
    void restoreState(const QSettings &settings);

public slots:
    /// Makes the camera send only this region. A failure is shown in the panel.
    /// @param drawn Pixels of the present picture, which has the size `picture`.
    void applyRegion(const QRect &drawn, const QSize &picture);
    void applyWholeSensor();

    /// Multiplies the camera's colour factors by the gains of the display; see whiteBalanceWritten().
    void writeWhiteBalance(const std::array<double, 3> &gains);

signals:
    /// The person wants to draw the region on the picture; applyRegion() is the answer.
    void drawRegionRequested();

    void regionApplied();

    /// The camera balances the colours now, so the display need not.
    void whiteBalanceWritten();

    void openCameraSetupRequested();

private:
    void onNodesLoaded();
    void rebuild();
    void addGroup(const PanelGroup &layout);
    void addRegionButtons(CollapsibleGroup &group);
    void onFound(CollapsibleGroup *group, FeatureRow *row, FeatureEditor *editor);
    void onFeatureChanged(const QString &name);
    QString overwriteQuestion() const;
    void showConnection();
    void change(const CameraConnection::Call &call, CameraConnection::Done done);
    void onRegionChanged(const CvxCPP::CvxResult &result);
    void onWhiteBalanceChanged(const CvxCPP::CvxResult &result);
    void showResult(const CvxCPP::CvxResult &result);

    FeatureClient &m_client;
    StreamPauser *m_pauser = nullptr;
    QLabel *m_notice; ///< Why nothing can be changed.
    EditorNote *m_failure; ///< Why the region or the white balance was not changed.
    QVBoxLayout *m_groupLayout;
    QWidget *m_regionButtons = nullptr; ///< Null if the camera is not known yet.
    QVector<CollapsibleGroup *> m_groups;
    QHash<QString, FeatureEditor *> m_editors;
    QHash<QString, bool>
        m_isOpen; ///< By the key of the group; also for groups that this camera does not have.
    QString m_cameraId; ///< The camera for which the groups were made.
    QStringList m_features; ///< All features of that camera.
};
