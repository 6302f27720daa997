#include "tools/linescantuner/InputsForm.h"

#include "tools/kit/widgets/ComboBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace {

constexpr double largestNumber = 1e6;

} // namespace

InputsForm::InputsForm(QWidget *parent) : QWidget(parent), m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setColumnStretch(1, 1);
    m_trigger = addChoice(tr("&Lines come from"), {tr("the camera's line rate"), tr("an encoder")});
    m_speed = addNumber(tr("&Speed"), tr("mm/s"), 3,
        tr("Speed of the object. With an encoder: the highest speed, for which the limits are checked."));
    m_encoderWay = addChoice(tr("&Encoder"), {tr("movement per pulse"), tr("pulses and roller")});
    m_encoderStep = addNumber(tr("&Movement per pulse"), tr("mm"), 6,
        tr("Movement of the object for one pulse, that is one cycle of one signal of the encoder."));
    m_pulses = addNumber(tr("Pulses per re&volution"), QString(), 0,
        tr("Number of pulses that the encoder sends while its roller turns once."));
    m_diameter = addNumber(
        tr("Roller &diameter"), tr("mm"), 4, tr("Diameter of the roller or wheel that turns the encoder."));
    m_pixelWay = addChoice(tr("Size of a &pixel"), {tr("from sensor and lens"), tr("known on the object")});
    m_pixelSize = addNumber(tr("Pi&xel of the sensor"), tr("µm"), 3,
        tr("Width of a pixel of the sensor; the data sheet names it."));
    m_magnification = addNumber(tr("Ma&gnification"), QString(), 5,
        tr("Size of the image on the sensor divided by the size of the object, for example 0.5."));
    m_objectPixel = addNumber(tr("Pixel &on the object"), tr("µm"), 3,
        tr("Width of the object that one pixel of the picture shows."));
    m_longest = new QCheckBox(tr("Use the longest exposure"));
    m_longest->setToolTip(tr("Otherwise, the exposure is only shortened if it does not fit into a line."));
    m_layout->addWidget(m_longest, m_layout->rowCount(), 0, 1, 2);
    connect(m_longest, &QCheckBox::toggled, this, &InputsForm::changed);
    showNeeded();
}

QDoubleSpinBox *InputsForm::addNumber(
    const QString &label, const QString &unit, int decimals, const QString &toolTip)
{
    auto *const box = new QDoubleSpinBox;
    box->setDecimals(decimals);
    box->setRange(0, largestNumber);
    box->setSpecialValueText(tr("not entered"));
    box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box->setKeyboardTracking(false); // A half typed number changes nothing.
    if (!unit.isEmpty())
        box->setSuffix(QLatin1Char(' ') + unit);
    box->setToolTip(toolTip);
    box->setAccessibleDescription(toolTip);
    addRow(label, box);
    connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &InputsForm::changed);
    return box;
}

/// A grid leaves no gap for hidden rows.
void InputsForm::addRow(const QString &label, QWidget *field)
{
    auto *const name = new QLabel(label);
    name->setBuddy(field);
    m_labels.insert(field, name);
    const int row = m_layout->rowCount();
    m_layout->addWidget(name, row, 0);
    m_layout->addWidget(field, row, 1);
}

QComboBox *InputsForm::addChoice(const QString &label, const QStringList &entries)
{
    auto *const box = new QComboBox;
    box->addItems(entries);
    makeNarrow(box);
    addRow(label, box);
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &InputsForm::showNeeded);
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &InputsForm::changed);
    return box;
}

void InputsForm::showNeeded()
{
    const bool isEncoder = m_trigger->currentIndex() == 1;
    const bool isRoller = m_encoderWay->currentIndex() == 1;
    const bool isOnObject = m_pixelWay->currentIndex() == 1;
    setRowVisible(m_encoderWay, isEncoder);
    setRowVisible(m_encoderStep, isEncoder && !isRoller);
    setRowVisible(m_pulses, isEncoder && isRoller);
    setRowVisible(m_diameter, isEncoder && isRoller);
    setRowVisible(m_pixelSize, !isOnObject);
    setRowVisible(m_magnification, !isOnObject);
    setRowVisible(m_objectPixel, isOnObject);
}

void InputsForm::setRowVisible(QWidget *field, bool isVisible)
{
    field->setVisible(isVisible);
    m_labels.value(field)->setVisible(isVisible);
}

LineScanInputs InputsForm::inputs() const
{
    const auto value = [](const QDoubleSpinBox *box) { return box->isHidden() ? 0 : box->value(); };
    LineScanInputs inputs;
    inputs.trigger = m_trigger->currentIndex() == 1 ? LineScanInputs::Trigger::Encoder
                                                    : LineScanInputs::Trigger::LineRate;
    inputs.speed = value(m_speed);
    inputs.pixelSize = value(m_pixelSize);
    inputs.magnification = value(m_magnification);
    inputs.objectPixel = value(m_objectPixel);
    inputs.encoderStep = value(m_encoderStep);
    inputs.pulsesPerRevolution = value(m_pulses);
    inputs.rollerDiameter = value(m_diameter);
    inputs.usesLongestExposure = m_longest->isChecked();
    return inputs;
}

void InputsForm::setInputs(const LineScanInputs &inputs)
{
    const QSignalBlocker blocker(this);
    m_trigger->setCurrentIndex(inputs.trigger == LineScanInputs::Trigger::Encoder ? 1 : 0);
    m_encoderWay->setCurrentIndex(inputs.pulsesPerRevolution > 0 ? 1 : 0);
    m_pixelWay->setCurrentIndex(inputs.objectPixel > 0 ? 1 : 0);
    m_speed->setValue(inputs.speed);
    m_pixelSize->setValue(inputs.pixelSize);
    m_magnification->setValue(inputs.magnification);
    m_objectPixel->setValue(inputs.objectPixel);
    m_encoderStep->setValue(inputs.encoderStep);
    m_pulses->setValue(inputs.pulsesPerRevolution);
    m_diameter->setValue(inputs.rollerDiameter);
    m_longest->setChecked(inputs.usesLongestExposure);
    showNeeded();
}
