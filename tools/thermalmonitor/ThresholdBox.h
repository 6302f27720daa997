#pragma once

#include "tools/kit/measure/thermal/ThresholdWatch.h"

#include <QWidget>

class QCheckBox;
class QDoubleSpinBox;
class QGridLayout;
class ToolSettings;

/// Lets a person choose at which temperatures the program notifies. Remembers the choice.
class ThresholdBox : public QWidget
{
    Q_OBJECT

public:
    /// @param settings Outlives the widget.
    explicit ThresholdBox(ToolSettings &settings, QWidget *parent = nullptr);

    Thresholds thresholds() const;

signals:
    void changed();

private:
    struct Row
    {
        QCheckBox *isOn;
        QDoubleSpinBox *value;
    };

    Row addRow(QGridLayout *layout, const QString &text, const QString &key, double byDefault);
    void change();

    ToolSettings &m_settings;
    Row m_warning;
    Row m_alarm;
    QDoubleSpinBox *m_hysteresis;
};
