#include "tools/pixelrepair/RepairPanel.h"

#include "tools/kit/measure/defects/DefectFinder.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/pixelrepair/ResultBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
constexpr int usualImages = 16;
constexpr int maxImages = 1000;
const QString imagesKey = QStringLiteral("images");
} // namespace

RepairPanel::RepairPanel(ToolSettings &settings, QWidget *parent)
    : QWidget(parent),
      m_result(new ResultBox(this)),
      m_steps(new StepList(this)),
      m_images(new QSpinBox(this))
{
    StepCard *const dark = m_steps->addStep(tr("Cover the lens"),
        tr("No light may reach the sensor. A long exposure and a high gain show more hot pixels: use the "
           "longest "
           "exposure that you work with, and let the camera warm up."),
        tr("Take &dark images"));
    StepCard *const bright = m_steps->addStep(tr("Point at an evenly lit surface"),
        tr("Uncover the lens and fill the picture with one bright surface without objects, for example white "
           "paper, out of focus. Half of the highest brightness is best; leave the gain as it is."),
        tr("Take &bright images"));
    StepCard *const save = m_steps->addStep(tr("Save the map"),
        tr("The Image Viewer and cvxctl repair pictures with the map. A report and a table are saved beside "
           "it."),
        tr("&Save…"));
    addImagesControl(settings);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_result->counts());
    layout->addWidget(m_steps);
    layout->addWidget(m_result);
    connect(dark, &StepCard::triggered, this, &RepairPanel::darkRequested);
    connect(bright, &StepCard::triggered, this, &RepairPanel::brightRequested);
    connect(save, &StepCard::triggered, this, &RepairPanel::saveRequested);
    m_steps->reset();
}

void RepairPanel::addImagesControl(ToolSettings &settings)
{
    m_images->setObjectName(QStringLiteral("images"));
    m_images->setRange(int(minDefectImages), maxImages);
    m_images->setValue(settings.value(imagesKey, usualImages));
    m_images->setToolTip(tr("Number of dark images and of bright images. More images find weaker defects and "
                            "pixels that blink rarely."));
    auto *const control = new QWidget(this);
    auto *const label = new QLabel(tr("&Number of images"), control);
    label->setBuddy(m_images);
    auto *const layout = new QHBoxLayout(control);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addStretch();
    layout->addWidget(m_images);
    step(DarkStep).addWidget(control);
    connect(m_images, QOverload<int>::of(&QSpinBox::valueChanged), this,
        [&settings](int count) { settings.setValue(imagesKey, count); });
}

StepCard &RepairPanel::step(Step step)
{
    return *m_steps->step(step);
}

std::size_t RepairPanel::images() const
{
    return std::size_t(m_images->value());
}
