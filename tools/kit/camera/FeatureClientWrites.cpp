#include "tools/kit/camera/FeatureClient.h"

#include <utility>

using namespace CvxCPP;

// Writing and executing.

void FeatureClient::write(const QString &name, const NodeValue &value)
{
    m_operations.addWrite(name, value);
    runNextOperation();
}

void FeatureClient::execute(const QString &name)
{
    m_operations.addCommand(name);
    runNextOperation();
}

bool FeatureClient::isWriting(const QString &name) const
{
    return m_operations.hasWrite(name) || (m_running && m_running->value && m_running->name == name);
}

void FeatureClient::runNextOperation()
{
    if (m_running)
        return;
    m_running = m_operations.takeNext();
    if (!m_running)
        return;
    const auto call = [operation = *m_running](Device &device) {
        const std::string name = operation.name.toStdString();
        return operation.value ? device.Write(name, *operation.value) : device.Execute(name);
    };
    m_connection.run(call, this, [this](const CvxResult &result) { takeOperation(result); });
}

void FeatureClient::takeOperation(const CvxResult &result)
{
    const FeatureOperation done = *std::exchange(m_running, std::nullopt);
    runNextOperation();
    if (m_indexes.contains(done.name))
        readSoon({done.name});
    if (!result)
        emit failed(done.name, QString::fromStdString(result.text));
    else if (done.value)
        takeWritten(done.name, *done.value);
    else
        emit executed(done.name);
}

void FeatureClient::takeWritten(const QString &name, const NodeValue &value)
{
    const auto known = m_states.constFind(name);
    const bool isKnown = known != m_states.constEnd() && !isOutdated(name);
    const NodeValue before = isKnown ? known->value : NodeValue();
    storeValue(name, value);
    markOutdated(selectedBy(name));
    emit written(name, before, value);
}

/// Stores the value that the camera has accepted, so the next write knows what it replaces.
void FeatureClient::storeValue(const QString &name, const NodeValue &value)
{
    const auto known = m_states.find(name);
    if (known == m_states.end())
        return;
    m_outdated.remove(name);
    if (known->value == value)
        return;
    known->value = value;
    emit stateChanged(name);
}

/// Returns the features that have other values for another value of this selector.
QStringList FeatureClient::selectedBy(const QString &name) const
{
    QStringList names{name};
    for (int index = 0; index < names.size(); ++index) {
        const NodeInfo *const node = info(names[index]);
        for (const std::string &selected : node ? node->selected : std::vector<std::string>()) {
            const QString added = QString::fromStdString(selected);
            if (!names.contains(added)) // A wrong description may contain a circle.
                names.append(added);
        }
    }
    names.removeFirst();
    return names;
}

/// The states are those for other values of the selectors until they are read again.
void FeatureClient::markOutdated(const QStringList &names)
{
    for (const QString &name : names) {
        if (m_states.contains(name))
            m_outdated.insert(name);
    }
    readSoon(watchedOf(names));
}

void FeatureClient::noteWritten(const QString &name, const NodeValue &before, const NodeValue &after)
{
    if (m_indexes.contains(name))
        readSoon({name});
    const NodeState *const known = state(name);
    if (known && known->value == before) // Otherwise, a newer value was read meanwhile.
        storeValue(name, after);
    markOutdated(selectedBy(name));
    emit written(name, before, after);
}

void FeatureClient::noteExecuted(const QString &name)
{
    if (m_indexes.contains(name))
        readSoon({name});
    emit executed(name);
}
