#include "tools/kit/editors/NumberEditor.h"

#include "tools/kit/editors/NumberText.h"
#include "tools/kit/editors/StepBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSlider>

namespace {

constexpr int unitWidth = 22; ///< Common units get lines of the same width.
constexpr int pageSteps = SliderScale::positions / 20;

bool hasValue(const CvxCPP::NodeValue &value)
{
    return value.index() != 0;
}

} // namespace

NumberEditor::NumberEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent),
      m_box(new StepBox(this)),
      m_slider(new QSlider(Qt::Horizontal, this))
{
    auto *const control = new QWidget(this);
    auto *const layout = new QHBoxLayout(control);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_box, 1);
    if (!info.unit.empty()) {
        auto *const unit = new QLabel(unitText(info.unit), control);
        unit->setProperty("role", QStringLiteral("secondary"));
        unit->setMinimumWidth(unitWidth);
        layout->addWidget(unit);
    }
    control->setFocusProxy(m_box);
    setControl(control);
    addWideControl(m_slider);

    m_slider->setRange(0, SliderScale::positions);
    m_slider->setPageStep(pageSteps);
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_slider->installEventFilter(this);
    m_slider->hide();
    m_box->installEventFilter(this);
    NumberEditor::labelChanged();

    connect(m_box, &StepBox::confirmed, this, &NumberEditor::onConfirmed);
    connect(m_box, &StepBox::cancelled, this, &NumberEditor::refresh);
    connect(m_box, &StepBox::stepped, this, &NumberEditor::onStepped);
    connect(m_slider, &QSlider::valueChanged, this, &NumberEditor::onSliderMoved);
    connect(m_slider, &QSlider::sliderReleased, this, &NumberEditor::refresh);
}

void NumberEditor::setSliderUse(SliderUse use)
{
    m_sliderUse = use;
    refresh();
}

void NumberEditor::labelChanged()
{
    m_box->setAccessibleName(label());
    m_slider->setAccessibleName(label());
}

void NumberEditor::showState(const CvxCPP::NodeState &state)
{
    m_scale = hasValue(state.minimum) && hasValue(state.maximum)
        ? SliderScale::create(toDouble(state.minimum), toDouble(state.maximum), info().representation)
        : std::nullopt;
    showToolTip(state);
    const bool isWanted
        = m_sliderUse == SliderUse::Always || (m_sliderUse == SliderUse::Automatic && wantsSlider());
    m_slider->setVisible(isWanted && m_scale);
    if (m_slider->isSliderDown())
        return; // The person's hand goes before the camera's answer.
    m_value = state.value;
    showValue();
}

void NumberEditor::setEditable(bool isEditable)
{
    if (!isEditable) {
        m_box->endEditing(); // Otherwise the loss of the focus would confirm what is half typed.
        showValue();
    }
    m_box->setEnabled(isEditable);
    m_slider->setEnabled(isEditable);
}

void NumberEditor::onConfirmed(const QString &text)
{
    const CvxCPP::NodeValue typed = parse(text);
    if (!hasValue(typed)) {
        refresh();
        showRemark(tr("\"%1\" is not a number.").arg(text));
        return;
    }
    const CvxCPP::NodeValue allowed = nearest(typed);
    change(allowed);
    if (textOf(allowed) != textOf(typed)) // The numbers may differ by the rounding of a sum.
        showRemark(tr("The nearest value that the camera allows is %1.").arg(textOf(allowed)));
}

void NumberEditor::onStepped(int steps)
{
    if (hasValue(m_value))
        change(stepped(m_value, steps));
}

void NumberEditor::onSliderMoved(int position)
{
    m_box->endEditing();
    if (!m_scale)
        return;
    const CvxCPP::NodeValue moved = nearest(fromDouble(m_scale->value(position)));
    if (moved != m_value || m_slider->isSliderDown())
        change(moved);
    else // A key moves the slider by less than the distance to the next value.
        change(stepped(m_value, position > m_scale->position(toDouble(m_value)) ? 1 : -1));
}

void NumberEditor::change(const CvxCPP::NodeValue &value)
{
    m_value = value;
    showValue();
    submit(value);
}

void NumberEditor::showValue()
{
    m_box->showText(hasValue(m_value) ? textOf(m_value) : QString());
    const CvxCPP::NodeState *const read = state();
    const bool isNumber = read && hasValue(m_value);
    const bool canFall
        = isNumber && (!hasValue(read->minimum) || toDouble(m_value) > toDouble(read->minimum));
    const bool canRise
        = isNumber && (!hasValue(read->maximum) || toDouble(m_value) < toDouble(read->maximum));
    m_box->setSteps((canFall ? QAbstractSpinBox::StepDownEnabled : QAbstractSpinBox::StepNone)
        | (canRise ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepNone));
    if (m_slider->isSliderDown() || !m_scale || !isNumber)
        return;
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(m_scale->position(toDouble(m_value)));
}

void NumberEditor::showToolTip(const CvxCPP::NodeState &state)
{
    if (!hasValue(state.minimum) || !hasValue(state.maximum)) {
        m_box->setToolTip({});
        return;
    }
    const QString range = tr("%1 to %2 %3")
                              .arg(textOf(state.minimum), textOf(state.maximum), unitText(info().unit))
                              .trimmed();
    m_box->setToolTip(
        hasValue(state.increment) ? tr("%1, in steps of %2").arg(range, textOf(state.increment)) : range);
}
