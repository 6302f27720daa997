#include "tools/kit/editors/EnumerationEditor.h"

#include <QComboBox>
#include <QStandardItemModel>

#include <algorithm>

EnumerationEditor::EnumerationEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent), m_box(new QComboBox(this))
{
    for (const CvxCPP::EnumerationEntry &entry : info.entries)
        m_box->addItem(QString::fromStdString(entry.displayName), QString::fromStdString(entry.name));
    m_box->setFocusPolicy(Qt::StrongFocus);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setMinimumContentsLength(6);
    m_box->installEventFilter(this);
    setControl(m_box);
    EnumerationEditor::labelChanged();
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, &EnumerationEditor::onActivated);
}

void EnumerationEditor::showState(const CvxCPP::NodeState &state)
{
    auto *const items = qobject_cast<QStandardItemModel *>(m_box->model());
    for (int row = 0; row < m_box->count(); ++row) {
        const std::string &name = info().entries[static_cast<std::size_t>(row)].name;
        const auto &available = state.availableEntries;
        items->item(row)->setEnabled(std::find(available.begin(), available.end(), name) != available.end());
    }
    const auto *const name = std::get_if<std::string>(&state.value);
    m_box->setCurrentIndex(name ? m_box->findData(QString::fromStdString(*name)) : -1);
}

void EnumerationEditor::setEditable(bool isEditable)
{
    m_box->setEnabled(isEditable);
}

void EnumerationEditor::labelChanged()
{
    m_box->setAccessibleName(label());
}

void EnumerationEditor::onActivated(int index)
{
    submit(m_box->itemData(index).toString().toStdString());
}
