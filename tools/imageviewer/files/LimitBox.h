#pragma once

#include <QWidget>

class QCheckBox;
class QDoubleSpinBox;

/// A check box with a number, for a limit that can be switched off.
class LimitBox : public QWidget
{
    Q_OBJECT

public:
    /// What the number may be.
    struct Range
    {
        double minimum;
        double maximum;
        double initial;
        int decimals;
    };

    /// @param suffix Unit, with a space before it.
    LimitBox(const QString &text, const Range &range, const QString &suffix, QWidget *parent = nullptr);

    /// Returns the number; 0 if the limit is switched off.
    double limit() const;

    bool isOn() const;
    double number() const;

    /// Sets both, for example to what was saved. The number is limited to the range.
    void set(bool isOn, double number);

    void setToolTipText(const QString &text);

private:
    QCheckBox *m_check;
    QDoubleSpinBox *m_number;
};
