#pragma once

#include "tools/kit/measure/flatfield/FlatFieldMeasurement.h"
#include "tools/kit/measure/flatfield/LiveLevel.h"

#include <QWidget>

#include <optional>

class BigNumber;
class LevelBar;
class Plot;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class QTableWidget;
class StepList;

/// The panel of Flat Field: shading before and after, the three steps, the numbers and the profiles.
class FlatFieldPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FlatFieldPanel(QWidget *parent = nullptr);

    /// What the person has chosen.
    FlatFieldOptions options() const;

    void showLevel(const std::optional<LiveLevel> &level);

    /// Disables the steps and the preview while something is measured.
    void setBusy(bool isBusy);

    void showDarkTaken(const QStringList &warnings);
    void showResult(const FlatFieldResult &result, const QStringList &warnings);

    /// Shows why a step has failed.
    void showDarkProblem(const QString &problem);
    void showBrightProblem(const QString &problem);

    /// Removes the result; the next step is to take dark images.
    void forgetResult();

    /// Shows that the result was saved.
    void showSaved(const QString &fileName);

    /// Forgets everything, for another camera.
    void reset();

    Plot &plot() { return *m_plot; }
    QTableWidget &numbers() { return *m_numbers; }

signals:
    void darkRequested();
    void brightRequested();
    void saveRequested();
    void previewToggled(bool isCorrected);

private:
    void createChoices();
    void createSteps();
    void createNumbers();
    void createPlot();
    void showProfiles(const FlatFieldResult &result);
    void clearResult();

    BigNumber *m_before;
    BigNumber *m_after;
    StepList *m_steps;
    LevelBar *m_level;
    QSpinBox *m_images;
    QCheckBox *m_setsExposure;
    QComboBox *m_detail;
    QComboBox *m_goal;
    QCheckBox *m_preview;
    QTableWidget *m_numbers;
    QLabel *m_summary;
    Plot *m_plot;
    bool m_hasResult = false;
};
