#pragma once

#include "tools/kit/measure/thermal/PlaceMonitor.h"

#include <QFrame>

class BigNumber;
class QLabel;

/// The temperature of one place in large digits, with its state, rate and expected final value.
class PlaceCard : public QFrame
{
    Q_OBJECT

public:
    explicit PlaceCard(QWidget *parent = nullptr);

    void show(const PlaceMonitor &place);

private:
    BigNumber *m_value;
    QLabel *m_state;
    QLabel *m_forecast;
};
