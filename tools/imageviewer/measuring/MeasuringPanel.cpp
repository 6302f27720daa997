#include "tools/imageviewer/measuring/MeasuringPanel.h"

#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawImage.h"
#include "tools/imageviewer/measuring/DisplayControls.h"
#include "tools/imageviewer/measuring/HistogramWidget.h"
#include "tools/imageviewer/measuring/PictureRules.h"
#include "tools/imageviewer/measuring/ProfileBox.h"
#include "tools/imageviewer/measuring/StatisticsTable.h"
#include "tools/kit/picture/WhiteBalance.h"
#include "tools/kit/widgets/Heading.h"
#include "tools/kit/widgets/VerticalScrollArea.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int greyPatchSize = 16; // Pixels.

std::uint32_t coordinate(int number)
{
    return static_cast<std::uint32_t>(std::max(number, 0));
}

Region regionOf(const QRect &rect)
{
    return {coordinate(rect.x()), coordinate(rect.y()), coordinate(rect.width()), coordinate(rect.height())};
}

QString patchProblem(GreyPatch patch)
{
    switch (patch) {
    case GreyPatch::WithoutColor:
        return MeasuringPanel::tr("The picture has no colours to balance.");
    case GreyPatch::TooDark:
        return MeasuringPanel::tr("This place is too dark for a white balance. Pick a brighter one.");
    case GreyPatch::Clipped:
        return MeasuringPanel::tr("This place is overexposed. Pick a darker one, or reduce the exposure.");
    case GreyPatch::Usable:
        break;
    }
    return {};
}

} // namespace

MeasuringPanel::MeasuringPanel(QWidget *parent)
    : QWidget(parent),
      m_histogram(new HistogramWidget),
      m_logarithmic(new QPushButton(tr("Log"))),
      m_profile(new ProfileBox),
      m_statistics(new StatisticsTable),
      m_display(new DisplayControls),
      m_area(new QComboBox),
      m_message(new QLabel)
{
    auto *const content = new QWidget;
    content->setObjectName(QStringLiteral("measuringContent"));
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(8, 8, 8, 8);
    addHistogram(layout);
    addStatistics(layout);
    layout->addWidget(m_profile);
    addDisplay(layout);
    layout->addStretch();

    auto *const scrollArea = new VerticalScrollArea;
    scrollArea->setWidget(content);
    auto *const outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scrollArea);
}

void MeasuringPanel::addHistogram(QVBoxLayout *layout)
{
    m_area->addItems({tr("Whole picture"), tr("Drawn region")});
    m_area->setAccessibleName(tr("Measured area"));
    m_area->setToolTip(
        tr("Where histogram and statistics are measured. Draw a region in the picture to measure it."));
    m_area->setEnabled(false);
    m_logarithmic->setCheckable(true);
    m_logarithmic->setToolTip(tr("Shows the histogram logarithmically, so that rare values can be seen."));
    auto *const fit = new QPushButton(tr("Fit contrast"));
    fit->setToolTip(tr("Spreads the values of the picture from black to white. Only the display changes."));
    auto *const reset = new QPushButton(tr("Reset"));
    reset->setAccessibleName(tr("Reset the contrast"));
    auto *const title = new QHBoxLayout;
    title->addWidget(createHeading(tr("Histogram")), 1);
    title->addWidget(m_area);
    auto *const buttons = new QHBoxLayout;
    for (QPushButton *const button : {m_logarithmic, fit, reset})
        buttons->addWidget(button);
    layout->addLayout(title);
    layout->addWidget(m_histogram);
    layout->addLayout(buttons);
    connect(
        m_area, qOverload<int>(&QComboBox::currentIndexChanged), this, &MeasuringPanel::requestMeasurement);
    connect(m_logarithmic, &QPushButton::toggled, m_histogram, &HistogramWidget::setLogarithmic);
    connect(fit, &QPushButton::clicked, this, &MeasuringPanel::fitContrast);
    connect(reset, &QPushButton::clicked, this, &MeasuringPanel::resetContrast);
    connect(m_histogram, &HistogramWidget::curveChanged, m_display, &DisplayControls::setCurve);
}

void MeasuringPanel::addStatistics(QVBoxLayout *layout)
{
    auto *const copy = new QPushButton(tr("Copy"));
    copy->setToolTip(tr("Copies the statistics to the clipboard, for a table."));
    auto *const title = new QHBoxLayout;
    title->addWidget(createHeading(tr("Statistics")), 1);
    title->addWidget(copy);
    layout->addLayout(title);
    layout->addWidget(m_statistics);
    connect(copy, &QPushButton::clicked, m_statistics, &StatisticsTable::copy);
}

void MeasuringPanel::addDisplay(QVBoxLayout *layout)
{
    m_message->setWordWrap(true);
    m_message->setProperty("role", QStringLiteral("warning"));
    m_message->hide();
    layout->addWidget(createHeading(tr("Display")));
    layout->addWidget(m_display);
    layout->addWidget(m_message);
    connect(m_profile, &ProfileBox::lineChanged, this, &MeasuringPanel::requestMeasurement);
    connect(m_display, &DisplayControls::settingsChanged, this, &MeasuringPanel::displaySettingsChanged);
    connect(m_display, &DisplayControls::micrometresPerPixelChanged, this,
        &MeasuringPanel::micrometresPerPixelChanged);
    connect(m_display, &DisplayControls::greyPickingChanged, this, &MeasuringPanel::greyPickingChanged);
    connect(m_display, &DisplayControls::whiteBalanceWriteRequested, this,
        &MeasuringPanel::whiteBalanceWriteRequested);
}

MeasureRequest MeasuringPanel::measureRequest() const
{
    MeasureRequest request;
    if (!isVisible())
        return request;
    request.wantsHistogram = true;
    request.wantsStatistics = true;
    if (m_area->currentIndex() == 1)
        request.region = regionOf(m_region);
    request.line = m_profile->line();
    return request;
}

const DisplaySettings &MeasuringPanel::displaySettings() const
{
    return m_display->settings();
}

double MeasuringPanel::micrometresPerPixel() const
{
    return m_display->micrometresPerPixel();
}

bool MeasuringPanel::isLogarithmic() const
{
    return m_logarithmic->isChecked();
}

void MeasuringPanel::setDisplaySettings(const DisplaySettings &settings)
{
    m_histogram->setCurve(settings.curve);
    m_display->setSettings(settings);
}

void MeasuringPanel::setMicrometresPerPixel(double micrometres)
{
    m_display->setMicrometresPerPixel(micrometres);
}

void MeasuringPanel::setLogarithmic(bool isLogarithmic)
{
    m_logarithmic->setChecked(isLogarithmic);
}

void MeasuringPanel::setWhiteBalanceWritable(bool isWritable)
{
    m_display->setWhiteBalanceWritable(isWritable);
}

void MeasuringPanel::balanceWhite(const CvxCPP::Image &image, const QPoint &pixel)
{
    const RawImage picture = rawImage(image);
    const QRect whole(0, 0, static_cast<int>(picture.width), static_cast<int>(picture.height));
    const QRect patch
        = QRect(pixel - QPoint(greyPatchSize, greyPatchSize) / 2, QSize(greyPatchSize, greyPatchSize))
        & whole;
    if (patch.isEmpty())
        return;
    const WhiteBalance balance = whiteBalance(picture, regionOf(patch));
    m_message->setText(patchProblem(balance.patch));
    m_message->setVisible(balance.patch != GreyPatch::Usable);
    if (balance.patch != GreyPatch::Usable)
        return; // Picking goes on.
    m_display->setPickingGrey(false);
    m_display->setGains(balance.gains);
}

void MeasuringPanel::resetWhiteBalance()
{
    m_display->setGains({1, 1, 1});
}

void MeasuringPanel::setMeasurements(const Measurements &measurements)
{
    describePicture(measurements);
    m_histogram->setHistogram(measurements.histogram);
    m_statistics->setStatistics(measurements.statistics);
    m_profile->setProfile(measurements.profile);
}

void MeasuringPanel::setRegion(const QRect &region)
{
    const bool hadRegion = !m_region.isEmpty();
    m_region = region;
    const bool hasRegion = !m_region.isEmpty();
    m_area->setEnabled(hasRegion);
    if (hadRegion != hasRegion)
        m_area->setCurrentIndex(hasRegion ? 1 : 0); // This requests a measurement by itself.
    else if (m_area->currentIndex() == 1)
        requestMeasurement();
}

void MeasuringPanel::setLine(const QLine &line)
{
    m_profile->setDrawnLine(line);
}

void MeasuringPanel::setPointer(const QPoint &pixel)
{
    m_profile->setPointer(pixel);
}

void MeasuringPanel::clear()
{
    m_histogram->setHistogram(std::nullopt);
    m_statistics->setStatistics({});
    m_profile->setProfile(std::nullopt);
    m_message->hide();
}

void MeasuringPanel::fitContrast()
{
    if (!m_histogram->histogram())
        return;
    const ContrastCurve curve
        = fittedContrast(*m_histogram->histogram(), displaySettings().gains, displaySettings().curve);
    m_histogram->setCurve(curve);
    m_display->setCurve(curve);
}

void MeasuringPanel::resetContrast()
{
    m_histogram->setCurve({});
    m_display->setCurve({});
}

void MeasuringPanel::showEvent(QShowEvent *)
{
    requestMeasurement();
}

void MeasuringPanel::hideEvent(QHideEvent *)
{
    requestMeasurement();
}

void MeasuringPanel::requestMeasurement()
{
    emit measureRequestChanged(measureRequest());
}

/// Adapts the controls to the picture.
void MeasuringPanel::describePicture(const Measurements &measurements)
{
    const PixelLayout &layout = findPixelLayout(measurements.pixelFormat);
    m_display->setPictureKind(layout.format.kind == PixelKind::Bayer, layout.screenChannels() == 3);
    if (measurements.pixelFormat != m_pixelFormat) {
        m_pixelFormat = measurements.pixelFormat;
        const bool isUnknown = layout.packing == Packing::Unknown;
        m_message->setText(
            isUnknown ? tr("The pixel format is not known, so bytes are measured.") : QString());
        m_message->setVisible(isUnknown);
    }
    m_profile->setPictureSize({static_cast<int>(measurements.width), static_cast<int>(measurements.height)});
}
