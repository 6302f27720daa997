#pragma once

#include "tools/kit/measure/linescan/LineRatePlan.h"

#include <QWidget>

class QFormLayout;
class QLabel;
class QTableWidget;

/// Shows what was calculated: the numbers with their limits, the warnings, and the settings that would be
/// written with the values that they have now.
class PlanView : public QWidget
{
    Q_OBJECT

public:
    explicit PlanView(QWidget *parent = nullptr);

    void showPlan(const LineRatePlan &plan);
    void clear();

    QString warnings() const; ///< One per line.

private:
    void addValue(const QString &name, const QString &value);
    void addValues(const LineRatePlan &plan);
    void addEncoderValues(const LineRatePlan &plan);
    void showSettings(const std::vector<PlannedSetting> &settings);

    QFormLayout *m_values;
    QLabel *m_warnings;
    QLabel *m_settingsTitle;
    QTableWidget *m_settings;
};
