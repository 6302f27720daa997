#include "tools/imageviewer/files/LimitBox.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>

LimitBox::LimitBox(const QString &text, const Range &range, const QString &suffix, QWidget *parent)
    : QWidget(parent), m_check(new QCheckBox(text, this)), m_number(new QDoubleSpinBox(this))
{
    m_number->setDecimals(range.decimals);
    m_number->setRange(range.minimum, range.maximum);
    m_number->setValue(range.initial);
    m_number->setSuffix(suffix);
    m_number->setGroupSeparatorShown(true);
    m_number->setAccessibleName(text);
    constexpr int characters = 12; // Otherwise, the largest number would decide the width of the panel.
    m_number->setMinimumWidth(characters * fontMetrics().averageCharWidth());
    m_number->setEnabled(false);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_check, 1);
    layout->addWidget(m_number);
    connect(m_check, &QCheckBox::toggled, m_number, &QWidget::setEnabled);
}

double LimitBox::limit() const
{
    return isOn() ? number() : 0;
}

bool LimitBox::isOn() const
{
    return m_check->isChecked();
}

double LimitBox::number() const
{
    return m_number->value();
}

void LimitBox::set(bool isOn, double number)
{
    m_check->setChecked(isOn);
    m_number->setValue(number);
}

void LimitBox::setToolTipText(const QString &text)
{
    m_check->setToolTip(text);
    m_number->setToolTip(text);
}
