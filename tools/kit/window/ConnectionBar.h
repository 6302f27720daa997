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

signals:
    void watchRequested();
    void controlRequested(); ///< Open the same camera again, for control.
    void otherCameraRequested();

private:
    void update();

    CameraConnection &m_connection;
    QLabel *m_text;
    QPushButton *m_watch;
    QPushButton *m_control;
    QPushButton *m_other;
};
