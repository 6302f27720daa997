#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

/// The features that wait to be read, each of them once.
class ReadQueue
{
public:
    /// Adds the names behind the others. A name that already waits keeps its place.
    void append(const QStringList &names);

    /// Places the names before those that waited when endGroup() was called last. The names of several calls
    /// since then keep the order of the calls, as the rows of a list are shown one after the other.
    void prepend(const QStringList &names);
    void endGroup() { m_groupSize = 0; }

    void remove(const QString &name);
    void clear();
    bool isEmpty() const { return m_names.isEmpty(); }

    /// Removes and returns the first names.
    QStringList take(std::size_t count);

private:
    QMap<qint64, QString> m_names; // By place.
    QHash<QString, qint64> m_places;
    qint64 m_endPlace = 0;
    qint64 m_groupStart = 0; // The first place of the names of the present group.
    qint64 m_groupSize = 0;
};
