#pragma once

#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/linescantuner/TargetTracker.h"
#include "tools/linescantuner/TunerSession.h"

class BigNumber;
class InputsForm;
class PlanView;
class QAction;
class QCheckBox;
class QComboBox;
class QPushButton;
class StepCard;
class StepList;

/// Line Scan Tuner: calculates and writes line rate or encoder settings for a moving object, and checks them
/// with a round target in the rolling picture.
class LineScanWindow : public AssistantWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    LineScanWindow(const QString &camera, ToolSettings &settings);
    ~LineScanWindow() override;

private:
    /// How a person chooses the target.
    enum TargetChoice
    {
        Largest,
        Clicked,
        Drawn
    };

    QWidget *createPanel();
    QWidget *createTargetRow();
    void createSteps();
    void connectParts();

    void followCamera();
    void rememberInputs();
    void restoreInputs();
    void onInputsChanged();
    void chooseTarget(int choice);
    void onPicked(const QPoint &pixel);
    void onRegionChanged(const QRect &region);

    void showSearch(const TargetSearch &search);
    void showSession();
    void showMeasurement();
    void updateSteps();
    int nextStep() const;
    void showStep(int index);
    void doNextStep();

    void apply();
    void onApplied(const QString &problem);
    void measure();
    void correct();
    void save();
    void saveWith(const CameraRecord &record);

    TunerSession m_session;
    TargetTracker *m_tracker = nullptr;
    BigNumber *m_number = nullptr;
    QComboBox *m_targetChoice = nullptr;
    QCheckBox *m_tracks = nullptr;
    StepList *m_steps = nullptr;
    StepCard *m_describeStep = nullptr;
    StepCard *m_applyStep = nullptr;
    StepCard *m_measureStep = nullptr;
    StepCard *m_correctStep = nullptr;
    InputsForm *m_form = nullptr;
    PlanView *m_plan = nullptr;
    QPushButton *m_undo = nullptr;
    QPushButton *m_saveButton = nullptr;
    QAction *m_next = nullptr;
    QAction *m_save = nullptr;
    QString m_cameraId; ///< Whose inputs are shown.
    QString m_measureProblem; ///< Why the last measurement has failed.
    bool m_measuresAfterApply = false; ///< A correction was written, and is to be checked.
};
