#pragma once

#include "tools/kit/camera/CameraConnection.h"

#include <QFrame>

class QLabel;
class QPushButton;

/// One line above a tool's content that says what is wrong with the connection, and offers what can be done.
/// Hidden while the camera is open for control.
class ConnectionBar : public QFrame
{
    Q_OBJECT

public:
    explicit ConnectionBar(CameraConnection &connection, QWidget *parent = nullptr);

    /// A tool whose content shows by itself that the camera is lost switches the line for this case off.
    void setShowsLoss(bool showsLoss);

    /// Returns what happened to a lost camera, and when.
    static QString lossText(const CameraConnection &connection);

signals:
    void watchRequested();
    void controlRequested(); ///< Open the same camera again, for control.
    void otherCameraRequested();

private:
    void update();

    CameraConnection &m_connection;
    bool m_showsLoss = true;
    QLabel *m_text;
    QPushButton *m_watch;
    QPushButton *m_control;
    QPushButton *m_other;
};
