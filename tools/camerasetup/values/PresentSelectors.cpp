#include "tools/camerasetup/values/PresentSelectors.h"

#include "sdk/features/FeatureText.h"

#include <utility>

using namespace CvxCPP;

PresentSelectors::PresentSelectors(FeatureClient &client, QObject *parent) : QObject(parent), m_client(client)
{
    connect(&client, &FeatureClient::nodesLoaded, this, &PresentSelectors::follow);
    connect(&client, &FeatureClient::nodesGone, this, &PresentSelectors::forget);
    follow();
}

PresentSelectors::~PresentSelectors()
{
    m_client.unwatch(m_watched);
}

std::optional<std::vector<SelectorSetting>> PresentSelectors::of(const std::string &name) const
{
    std::vector<SelectorSetting> settings;
    for (const std::string &selector : m_directory.selectorsOf(name)) {
        const QString selectorName = QString::fromStdString(selector);
        const NodeState *const state = m_client.state(selectorName);
        if (!state || state->value.index() == 0 || m_client.isOutdated(selectorName))
            return std::nullopt;
        settings.push_back({selector, settingText(state->value)});
    }
    return settings;
}

void PresentSelectors::follow()
{
    forget();
    const QVector<NodeInfo> &nodes = m_client.nodes();
    m_directory = FeatureDirectory(std::vector<NodeInfo>(nodes.begin(), nodes.end()));
    for (const NodeInfo &node : nodes) {
        if (!node.selected.empty())
            m_watched.append(QString::fromStdString(node.name));
    }
    m_client.watch(m_watched);
}

void PresentSelectors::forget()
{
    m_directory = FeatureDirectory();
    m_client.unwatch(std::exchange(m_watched, {}));
}
