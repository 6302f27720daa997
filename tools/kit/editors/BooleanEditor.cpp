#include "tools/kit/editors/BooleanEditor.h"

#include <QCheckBox>

BooleanEditor::BooleanEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent), m_box(new QCheckBox(this))
{
    hideLabel();
    setControl(m_box);
    BooleanEditor::labelChanged();
    connect(m_box, &QCheckBox::clicked, this, [this](bool isChecked) { submit(isChecked); });
}

void BooleanEditor::showState(const CvxCPP::NodeState &state)
{
    const auto *const isOn = std::get_if<bool>(&state.value);
    m_box->setChecked(isOn && *isOn);
}

void BooleanEditor::setEditable(bool isEditable)
{
    m_box->setEnabled(isEditable);
}

void BooleanEditor::labelChanged()
{
    m_box->setText(hasLabel() ? label() : QString());
    m_box->setAccessibleName(label());
}
