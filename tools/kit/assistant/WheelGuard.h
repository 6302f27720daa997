#pragma once

#include <QObject>

class QWidget;

/// Lets the wheel scroll a panel: boxes and sliders without the keyboard focus ignore it, so scrolling
/// changes no value.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the controls that the panel has now. The panel owns the guard.
    explicit WheelGuard(QWidget *panel);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
