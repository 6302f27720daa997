#include "tools/kit/editors/FeatureRow.h"

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/FeatureEditors.h"

#include <QVBoxLayout>

#include <utility>

FeatureRow::FeatureRow(const FeatureRowContent &row, FeatureClient &client, QWidget *parent)
    : QWidget(parent), m_row(row), m_client(&client)
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    hide();
    connect(&client, &FeatureClient::stateChanged, this, &FeatureRow::onStateChanged);
    connect(&client, &FeatureClient::nodesLoaded, this, &FeatureRow::decide);
    tryNext();
}

FeatureRow::~FeatureRow()
{
    stopWaiting();
}

/// Waits for the state of the next name that the camera lists.
void FeatureRow::tryNext()
{
    while (m_next < m_row.names.size()) {
        const QString name = m_row.names[m_next++];
        if (!m_client->info(name))
            continue;
        m_waitingFor = name;
        m_client->watch({name});
        decide();
        return;
    }
}

void FeatureRow::onStateChanged(const QString &name)
{
    if (name == m_waitingFor)
        decide();
}

void FeatureRow::decide()
{
    const CvxCPP::NodeState *const state = m_waitingFor.isEmpty() ? nullptr : m_client->state(m_waitingFor);
    if (!state)
        return;
    if (state->access != CvxCPP::NodeAccess::NotImplemented)
        place();
    stopWaiting();
    if (!m_editor)
        tryNext();
}

void FeatureRow::place()
{
    const CvxCPP::NodeState *const state = m_client->state(m_waitingFor);
    m_editor = createFeatureEditor(*m_client->info(m_waitingFor), *m_client, this);
    if (!m_editor)
        return;
    if (auto *const number = qobject_cast<NumberEditor *>(m_editor))
        number->setSliderUse(m_row.slider);
    if (!m_row.label.isEmpty())
        m_editor->setLabel(m_row.label);
    layout()->addWidget(m_editor);
    setVisible(!m_row.isSelector || state->availableEntries.size() > 1);
    emit found(m_editor);
}

void FeatureRow::stopWaiting()
{
    const QString name = std::exchange(m_waitingFor, {});
    if (!name.isEmpty() && m_client)
        m_client->unwatch({name});
}
