#pragma once

#include <QWidget>

class QSpinBox;
class ResultBox;
class StepCard;
class StepList;
class ToolSettings;

/// The panel of Pixel Repair: the result, and the steps that lead to it.
class RepairPanel : public QWidget
{
    Q_OBJECT

public:
    /// @param settings Keeps the number of images; outlives the panel.
    explicit RepairPanel(ToolSettings &settings, QWidget *parent = nullptr);

    enum Step
    {
        DarkStep,
        BrightStep,
        SaveStep
    };

    ResultBox &result() { return *m_result; }
    StepList &steps() { return *m_steps; }
    StepCard &step(Step step);

    std::size_t images() const; ///< Returns the number of images of each set.

signals:
    void darkRequested();
    void brightRequested();
    void saveRequested();

private:
    void addImagesControl(ToolSettings &settings);

    ResultBox *m_result;
    StepList *m_steps;
    QSpinBox *m_images;
};
