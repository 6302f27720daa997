#include "tools/flatfield/FlatFieldPanel.h"

#include "tools/flatfield/FlatFieldNumbers.h"
#include "tools/flatfield/LevelBar.h"
#include "tools/kit/plot/Plot.h"
#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/ComboBox.h"
#include "tools/kit/widgets/Heading.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Step
{
    DarkStep,
    BrightStep,
    SaveStep
};

constexpr double panelPercent = 100;
constexpr double goodShading = 0.02;
constexpr int plotHeight = 170;
constexpr int maxImages = 1024;

QString resultText(const QString &text, const QStringList &warnings)
{
    return warnings.isEmpty() ? text : text + QLatin1Char(' ') + warnings.join(QLatin1Char(' '));
}

} // namespace

FlatFieldPanel::FlatFieldPanel(QWidget *parent)
    : QWidget(parent),
      m_before(new BigNumber(tr("Shading before"))),
      m_after(new BigNumber(tr("Shading after"))),
      m_steps(new StepList),
      m_level(new LevelBar),
      m_images(new QSpinBox),
      m_setsExposure(new QCheckBox(tr("Set the exposure time automatically"))),
      m_detail(new QComboBox),
      m_goal(new QComboBox),
      m_preview(new QCheckBox(tr("Show the picture corrected"))),
      m_numbers(new QTableWidget),
      m_summary(new QLabel),
      m_plot(new Plot)
{
    auto *const big = new QHBoxLayout;
    big->addWidget(m_before);
    big->addWidget(m_after);
    createChoices();
    createSteps();
    createNumbers();
    createPlot();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(big);
    layout->addWidget(m_steps);
    layout->addWidget(m_plot);
    layout->addWidget(m_numbers);
    layout->addWidget(m_summary);
    reset();
}

void FlatFieldPanel::createSteps()
{
    StepCard *const dark = m_steps->addStep(tr("Dark images"),
        tr("Cover the lens completely. The images show the offset of each pixel."), tr("Take dark images"));
    dark->addWidget(m_images);
    StepCard *const bright = m_steps->addStep(tr("Bright images"),
        tr("Uncover the lens, and point the camera at an evenly lit surface, out of focus."),
        tr("Take bright images"));
    bright->addWidget(m_level);
    bright->addWidget(m_setsExposure);
    bright->addWidget(m_detail);
    bright->addWidget(m_goal);
    StepCard *const save = m_steps->addStep(tr("Correction"),
        tr("The Image Viewer and cvxctl apply the file to every picture of this camera."),
        tr("Save the correction…"));
    save->addWidget(m_preview);
    connect(dark, &StepCard::triggered, this, &FlatFieldPanel::darkRequested);
    connect(bright, &StepCard::triggered, this, &FlatFieldPanel::brightRequested);
    connect(save, &StepCard::triggered, this, &FlatFieldPanel::saveRequested);
    connect(m_preview, &QCheckBox::toggled, this, &FlatFieldPanel::previewToggled);
}

void FlatFieldPanel::createChoices()
{
    m_images->setRange(int(minReferenceImages), maxImages);
    m_images->setValue(int(FlatFieldOptions().images));
    m_images->setAccessibleName(tr("Number of images"));
    m_images->setPrefix(tr("Images: "));
    m_images->setToolTip(tr("Number of dark images and of bright images. More images leave less noise in the "
                            "correction. Half as many are taken in addition, to check the correction."));
    m_setsExposure->setChecked(true);
    m_setsExposure->setToolTip(
        tr("Sets the exposure time so that the bright images have about 70 % of the range, and puts it back "
           "afterwards."));
    m_detail->addItem(tr("Correct every pixel"), int(GainDetail::EveryPixel));
    m_detail->addItem(tr("Correct the shading only"), int(GainDetail::ShadingOnly));
    makeNarrow(m_detail);
    m_detail->setAccessibleName(tr("What is corrected"));
    m_detail->setToolTip(
        tr("The shading only: the gain changes smoothly over the picture, which adds no noise."));
    m_goal->addItem(tr("Keep the mean brightness"), int(GainLevel::Mean));
    m_goal->addItem(tr("Raise to the brightest place"), int(GainLevel::Brightest));
    makeNarrow(m_goal);
    m_goal->setAccessibleName(tr("Brightness after the correction"));
    m_goal->setToolTip(tr("Raised to the brightest place, no gain is below 1: what is clipped stays white."));
}

void FlatFieldPanel::createNumbers()
{
    m_numbers->setAccessibleName(tr("Non-uniformity before and after the correction"));
    m_numbers->setColumnCount(3);
    m_numbers->setHorizontalHeaderLabels(flatFieldHeader());
    m_numbers->verticalHeader()->hide();
    m_numbers->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_numbers->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_numbers->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_numbers->setSelectionMode(QAbstractItemView::NoSelection);
    m_numbers->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_numbers->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_numbers->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_numbers->setToolTip(tr(
        "DSNU: differences of the pixels in the dark. PRNU: differences of their sensitivity. By EMVA 1288 "
        "release 4.0, without the temporal noise."));
    m_summary->setWordWrap(true);
    m_summary->setProperty("role", QStringLiteral("secondary"));
}

void FlatFieldPanel::createPlot()
{
    m_plot->setAccessibleName(tr("Mean of the columns, before and after"));
    m_plot->setHorizontalAxis(Plot::Axis::Numbers, tr("Column"));
    m_plot->setVerticalAxis(tr("% of the mean"));
    m_plot->setFixedHeight(plotHeight);
    m_plot->addCurve(tr("Before"));
    m_plot->addCurve(tr("After"));
}

FlatFieldOptions FlatFieldPanel::options() const
{
    FlatFieldOptions options;
    options.images = std::size_t(m_images->value());
    options.setsExposure = m_setsExposure->isChecked();
    options.detail = GainDetail(m_detail->currentData().toInt());
    options.level = GainLevel(m_goal->currentData().toInt());
    return options;
}

void FlatFieldPanel::showLevel(const std::optional<LiveLevel> &level)
{
    if (level)
        m_level->setLevel(level->share, level->clippedShare);
    else
        m_level->clear();
}

void FlatFieldPanel::setBusy(bool isBusy)
{
    m_steps->setBusy(isBusy);
    m_images->setEnabled(!isBusy);
    m_setsExposure->setEnabled(!isBusy);
    m_detail->setEnabled(!isBusy);
    m_goal->setEnabled(!isBusy);
    m_preview->setEnabled(!isBusy && m_hasResult);
}

void FlatFieldPanel::showDarkTaken(const QStringList &warnings)
{
    clearResult();
    m_steps->setCurrent(BrightStep);
    m_steps->step(BrightStep)->setResult({});
    m_steps->step(SaveStep)->setResult({});
    m_steps->step(DarkStep)->setResult(
        resultText(tr("The dark images were taken."), warnings), warnings.isEmpty() ? "good" : "warning");
}

void FlatFieldPanel::showDarkProblem(const QString &problem)
{
    m_steps->step(DarkStep)->setResult(problem, "error");
}

void FlatFieldPanel::showBrightProblem(const QString &problem)
{
    m_steps->step(BrightStep)->setResult(problem, "error");
}

void FlatFieldPanel::showResult(const FlatFieldResult &result, const QStringList &warnings)
{
    m_steps->setCurrent(SaveStep);
    m_steps->step(BrightStep)
        ->setResult(resultText(flatFieldVerdict(result), warnings), warnings.isEmpty() ? "good" : "warning");
    m_steps->step(SaveStep)->setResult({});
    m_before->setValue(result.before.shading * panelPercent, 1, QStringLiteral("%"));
    m_after->setValue(result.after.shading * panelPercent, 1, QStringLiteral("%"));
    m_after->setRole(result.after.shading < goodShading ? "good" : "warning");
    const QVector<QStringList> rows = flatFieldRows(result);
    m_numbers->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < rows[row].size(); ++column)
            m_numbers->setItem(row, column, new QTableWidgetItem(rows[row][column]));
    }
    m_summary->setText(flatFieldSummary(result));
    showProfiles(result);
    for (QWidget *widget : {static_cast<QWidget *>(m_numbers), static_cast<QWidget *>(m_summary),
             static_cast<QWidget *>(m_plot)})
        widget->show();
    m_hasResult = true;
    m_preview->setEnabled(true);
}

void FlatFieldPanel::showProfiles(const FlatFieldResult &result)
{
    const auto samples = [&result](const UniformityProfile &profile) {
        QVector<QPointF> points;
        const double step = double(result.built.field.width) / double(profile.size());
        for (std::size_t point = 0; point < profile.size(); ++point)
            points.append({(double(point) + 0.5) * step, profile[point] * panelPercent});
        return points;
    };
    m_plot->setSamples(0, samples(result.before.horizontal));
    m_plot->setSamples(1, samples(result.after.horizontal));
}

void FlatFieldPanel::showSaved(const QString &fileName)
{
    m_steps->setCurrent(m_steps->count());
    m_steps->step(SaveStep)->setResult(tr("Saved as \"%1\".").arg(fileName));
}

void FlatFieldPanel::forgetResult()
{
    clearResult();
    m_steps->setCurrent(DarkStep);
}

void FlatFieldPanel::clearResult()
{
    m_before->clear();
    m_after->clear();
    m_after->setRole("");
    m_numbers->hide();
    m_summary->hide();
    m_plot->hide();
    m_hasResult = false;
    m_preview->setChecked(false);
    m_preview->setEnabled(false);
}

void FlatFieldPanel::reset()
{
    m_steps->reset();
    m_level->clear();
    clearResult();
}
