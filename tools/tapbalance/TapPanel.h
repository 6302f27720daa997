#pragma once

#include "tools/kit/measure/taps/TapBalancing.h"

#include <QWidget>

class BigNumber;
class LayoutBox;
class QLabel;
class QPushButton;
class StepList;
class TapBars;
class TapSession;

/// The panel of Tap Balance: how much the taps differ, the steps to balance them, and the result.
class TapPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TapPanel(TapSession &session, QWidget *parent = nullptr);

    /// What the camera reports, for example "Geometry_4X_1Y"; empty if it does not.
    void setGeometry(const QString &geometry);

    /// The steps can be taken: the camera is open for control.
    void setAllowed(bool isAllowed);

    /// Disables everything that would disturb a measurement.
    void setBusy(bool isBusy);

    const TapBars &bars() const { return *m_bars; }
    StepList &steps() { return *m_steps; }

signals:
    void saveRequested();

private:
    enum Step
    {
        MeasureStep,
        BlackLevelStep,
        GainStep,
        KeepStep
    };

    void addSteps();
    void run(int step);
    void showResult();
    void showProblem(const QString &problem);
    void updateButtons();

    TapSession &m_session;
    BigNumber *m_mismatch;
    TapBars *m_bars;
    QLabel *m_table; // Mean and noise of each tap.
    LayoutBox *m_layout;
    StepList *m_steps;
    QPushButton *m_skip;
    QPushButton *m_undo;
    int m_running = MeasureStep; // The step that was started last.
    bool m_isAllowed = false;
    bool m_isBusy = false;
};
