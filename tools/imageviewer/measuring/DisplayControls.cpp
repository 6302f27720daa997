#include "tools/imageviewer/measuring/DisplayControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr std::array<double, 3> neutralGains = {1, 1, 1};
constexpr double maxMicrometres = 100000;

} // namespace

DisplayControls::DisplayControls(QWidget *parent)
    : QWidget(parent),
      m_demosaicing(new QComboBox),
      m_clipMarks(new QCheckBox(tr("Mark clipped pixels"))),
      m_micrometres(new QDoubleSpinBox),
      m_gains(new QLabel),
      m_pickGrey(new QPushButton(tr("Pick grey"))),
      m_resetGains(new QPushButton(tr("Reset"))),
      m_writeGains(new QPushButton(tr("Write to camera")))
{
    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    addPictureRows(layout);
    addWhiteBalanceRows(layout);
    showGains();
    enableButtons();
}

void DisplayControls::addPictureRows(QFormLayout *layout)
{
    m_demosaicing->addItems(
        {tr("Fast (bilinear)"), tr("Fine (along edges)")}); // In the order of Demosaicing.
    m_demosaicing->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_demosaicing->setToolTip(tr("How the missing colours of a Bayer picture are found."));
    m_clipMarks->setToolTip(tr("Shows overexposed pixels in red and underexposed ones in blue."));
    m_micrometres->setRange(0, maxMicrometres);
    m_micrometres->setDecimals(3);
    m_micrometres->setSpecialValueText(tr("unknown"));
    m_micrometres->setSuffix(tr(" µm"));
    m_micrometres->setKeyboardTracking(false);
    m_micrometres->setToolTip(
        tr("What one pixel shows of the object. Lengths and the scale bar need this number."));
    layout->addRow(m_clipMarks);
    layout->addRow(tr("Demosaicing"), m_demosaicing);
    layout->addRow(tr("Size of a pixel"), m_micrometres);
    connect(m_demosaicing, qOverload<int>(&QComboBox::currentIndexChanged), this,
        &DisplayControls::changeDemosaicing);
    connect(m_clipMarks, &QCheckBox::toggled, this, &DisplayControls::changeClipMarks);
    connect(m_micrometres, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
        &DisplayControls::micrometresPerPixelChanged);
}

void DisplayControls::addWhiteBalanceRows(QFormLayout *layout)
{
    m_pickGrey->setCheckable(true);
    m_pickGrey->setToolTip(
        tr("Click on something grey in the picture. Its surroundings become grey on the screen."));
    m_resetGains->setAccessibleName(tr("Reset the white balance"));
    m_writeGains->setToolTip(tr("Multiplies the white balance of the camera by these factors."));
    auto *const buttons = new QHBoxLayout;
    for (QPushButton *const button : {m_pickGrey, m_resetGains, m_writeGains})
        buttons->addWidget(button);
    layout->addRow(tr("White balance"), m_gains);
    layout->addRow(buttons);
    connect(m_pickGrey, &QPushButton::toggled, this, &DisplayControls::greyPickingChanged);
    connect(m_resetGains, &QPushButton::clicked, this, [this] { setGains(neutralGains); });
    connect(m_writeGains, &QPushButton::clicked, this,
        [this] { emit whiteBalanceWriteRequested(m_settings.gains); });
}

void DisplayControls::setSettings(const DisplaySettings &settings)
{
    const QSignalBlocker demosaicingBlocker(m_demosaicing);
    const QSignalBlocker clipMarksBlocker(m_clipMarks);
    m_settings = settings;
    m_demosaicing->setCurrentIndex(static_cast<int>(settings.demosaicing));
    m_clipMarks->setChecked(settings.hasClipMarks);
    showGains();
    enableButtons();
    emit settingsChanged(m_settings);
}

void DisplayControls::setCurve(const ContrastCurve &curve)
{
    m_settings.curve = curve;
    emit settingsChanged(m_settings);
}

void DisplayControls::setGains(const std::array<double, 3> &gains)
{
    m_settings.gains = gains;
    showGains();
    enableButtons();
    emit settingsChanged(m_settings);
}

void DisplayControls::setMicrometresPerPixel(double micrometres)
{
    m_micrometres->setValue(micrometres);
}

void DisplayControls::setPickingGrey(bool isPicking)
{
    m_pickGrey->setChecked(isPicking);
}

double DisplayControls::micrometresPerPixel() const
{
    return m_micrometres->value();
}

void DisplayControls::setPictureKind(bool isBayer, bool hasColors)
{
    m_demosaicing->setEnabled(isBayer);
    m_hasColors = hasColors;
    enableButtons();
}

void DisplayControls::setWhiteBalanceWritable(bool isWritable)
{
    m_isWritable = isWritable;
    enableButtons();
}

void DisplayControls::changeDemosaicing(int index)
{
    m_settings.demosaicing = static_cast<Demosaicing>(index);
    emit settingsChanged(m_settings);
}

void DisplayControls::changeClipMarks(bool isOn)
{
    m_settings.hasClipMarks = isOn;
    emit settingsChanged(m_settings);
}

void DisplayControls::showGains()
{
    const QLocale locale;
    const auto number
        = [&locale, this](std::size_t i) { return locale.toString(m_settings.gains[i], 'f', 2); };
    m_gains->setText(tr("R %1 G %2 B %3").arg(number(0), number(1), number(2)));
    m_gains->setToolTip(tr("The factors of red, green and blue on the screen."));
}

void DisplayControls::enableButtons()
{
    const bool isNeutral = m_settings.gains == neutralGains;
    if (!m_hasColors)
        m_pickGrey->setChecked(false);
    m_pickGrey->setEnabled(m_hasColors);
    m_gains->setEnabled(m_hasColors);
    m_resetGains->setEnabled(!isNeutral);
    m_writeGains->setEnabled(m_hasColors && m_isWritable && !isNeutral);
}
