#pragma once

#include "tools/focusassistant/FocusSession.h"
#include "tools/kit/measure/focus/FocusResult.h"

#include <QStringList>
#include <QWidget>

class BigNumber;
class Plot;
class QLabel;
class QPushButton;
class QSpinBox;
class StepList;
class ToolSettings;

/// The panel of the Focus Assistant: the sharpness with its peak and trend, the steps, and the result.
class FocusPanel : public QWidget
{
    Q_OBJECT

public:
    /// The objects must outlive the panel.
    FocusPanel(FocusSession &session, ToolSettings &settings, QWidget *parent = nullptr);

    /// Shows the result of a search or of a turn by hand, which stays valid; null removes it.
    void showResult(const FocusResult *result);

    /// Shows why the last search failed; an empty text removes it.
    void showFailure(const QString &text);

    /// Enables the steps that are possible.
    void setSteps(bool canSearch, bool isSearching);

    const Plot &plot() const { return *m_plot; }

    /// Returns what the shown result says.
    QStringList sentences() const;

signals:
    void searchRequested();
    void tiltRequested();
    void forgetRequested();
    void saveRequested();

private:
    /// The steps in their order.
    enum Step
    {
        PointStep,
        TurnStep,
        TiltStep,
        AllDone
    };

    void createPlot();
    QWidget *createControls();
    void createSteps();
    void show();
    void showNumbers();
    void showCorners();
    void showTrend();
    void showSteps();
    Step currentStep() const;

    FocusSession &m_session;
    ToolSettings &m_settings;
    BigNumber *m_share;
    QLabel *m_problem;
    QLabel *m_advice;
    QLabel *m_corners;
    QLabel *m_movement;
    Plot *m_plot;
    QSpinBox *m_grid;
    StepList *m_steps;
    QPushButton *m_save;
    const FocusResult *m_shown = nullptr; // Null if there is none.
    bool m_canSearch = false;
    bool m_isSearching = false;
    bool m_hasResult = false;
};
