#include "tools/kit/camera/FeatureOperations.h"

#include <algorithm>

void FeatureOperations::addWrite(const QString &name, const CvxCPP::NodeValue &value)
{
    for (auto operation = m_waiting.rbegin(); operation != m_waiting.rend() && operation->value;
         ++operation) {
        if (operation->name == name) {
            operation->value = value;
            return;
        }
    }
    m_waiting.push_back({name, value});
}

void FeatureOperations::addCommand(const QString &name)
{
    m_waiting.push_back({name, std::nullopt});
}

std::optional<FeatureOperation> FeatureOperations::takeNext()
{
    if (m_waiting.empty())
        return std::nullopt;
    FeatureOperation next = m_waiting.front();
    m_waiting.pop_front();
    return next;
}

bool FeatureOperations::hasWrite(const QString &name) const
{
    return std::any_of(m_waiting.begin(), m_waiting.end(),
        [&](const FeatureOperation &operation) { return operation.value && operation.name == name; });
}
