#pragma once

#include "tools/kit/measure/linescan/LineScanInputs.h"

#include <QHash>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;

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
    void addRow(const QString &label, QWidget *field);
    void showNeeded();
    void setRowVisible(QWidget *field, bool isVisible);

    QGridLayout *m_layout;
    QHash<QWidget *, QLabel *> m_labels; ///< By their fields.
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
