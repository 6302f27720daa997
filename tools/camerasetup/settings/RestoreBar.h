#pragma once

#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QWidget>

class CameraConnection;

/// A line that appears when the camera was lost and is open again, for example after a crash of its producer
/// or a loss of its power: says that settings may be lost, and offers to compare them with the opening or to
/// restore them. Takes no room otherwise.
class RestoreBar : public QWidget
{
    Q_OBJECT

public:
    RestoreBar(CameraConnection &connection, OpeningSnapshot &opening, QWidget *parent = nullptr);

signals:
    void restoreRequested();
    void compareRequested();
};
