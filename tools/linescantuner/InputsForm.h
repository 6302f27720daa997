#pragma once

#include "tools/kit/measure/linescan/LineScanInputs.h"

#include <QVector>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;

/// Asks for what a person knows about the machine. Shows only the numbers that the chosen ways need.
class InputsForm : public QWidget
{
    Q_OBJECT

public:
    explicit InputsForm(QWidget *parent = nullptr);

    LineScanInputs inputs() const;

    /// Shows the inputs without changed().
    void setInputs(const LineScanInputs &inputs);

signals:
    /// A person has changed a number or a choice.
    void changed();

private:
    QDoubleSpinBox *addNumber(
        const QString &label, const QString &unit, int decimals, const QString &toolTip);
    QComboBox *addChoice(const QString &label, const QStringList &entries);
    void showNeeded();
    void setRowVisible(QWidget *field, bool isVisible);

    QFormLayout *m_layout;
    QComboBox *m_trigger;
    QDoubleSpinBox *m_speed;
    QComboBox *m_encoderWay; ///< Movement per pulse, or roller.
    QDoubleSpinBox *m_encoderStep;
    QDoubleSpinBox *m_pulses;
    QDoubleSpinBox *m_diameter;
    QComboBox *m_pixelWay; ///< Sensor and lens, or on the object.
    QDoubleSpinBox *m_pixelSize;
    QDoubleSpinBox *m_magnification;
    QDoubleSpinBox *m_objectPixel;
    QCheckBox *m_longest;
};
