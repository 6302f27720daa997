#pragma once

#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QFrame>

class CameraConnection;
class QLabel;
class QPushButton;

/// A line that appears when the camera was lost and is open again, for example after a crash of its producer
/// or a loss of its power: says that settings may be lost, and offers to compare them with the opening or to
/// restore them. Takes no room otherwise.
class RestoreBar : public QFrame
{
    Q_OBJECT

public:
    RestoreBar(CameraConnection &connection, OpeningSnapshot &opening, QWidget *parent = nullptr);

signals:
    void restoreRequested();
    void compareRequested();

private:
    void followConnection();
    void followOpening();

    CameraConnection &m_connection;
    OpeningSnapshot &m_opening;
    bool m_wasLost = false;
    QLabel *m_text;
    QPushButton *m_compare;
    QPushButton *m_restore;
};
