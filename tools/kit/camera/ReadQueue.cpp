#include "tools/kit/camera/ReadQueue.h"

namespace {

constexpr qint64 maxGroupSize = qint64(1) << 32; // Places that are reserved for one group.

} // namespace

void ReadQueue::append(const QStringList &names)
{
    for (const QString &name : names) {
        if (m_places.contains(name))
            continue;
        m_places.insert(name, m_endPlace);
        m_names.insert(m_endPlace++, name);
    }
}

void ReadQueue::prepend(const QStringList &names)
{
    for (const QString &name : names) {
        if (m_groupSize == 0)
            m_groupStart -= maxGroupSize;
        remove(name);
        m_places.insert(name, m_groupStart + m_groupSize);
        m_names.insert(m_groupStart + m_groupSize++, name);
    }
}

void ReadQueue::remove(const QString &name)
{
    const auto place = m_places.find(name);
    if (place == m_places.end())
        return;
    m_names.remove(*place);
    m_places.erase(place);
}

void ReadQueue::clear()
{
    m_names.clear();
    m_places.clear();
}

QStringList ReadQueue::take(std::size_t count)
{
    QStringList names;
    while (!m_names.isEmpty() && static_cast<std::size_t>(names.size()) < count) {
        names.append(m_names.first());
        remove(names.last());
    }
    return names;
}
