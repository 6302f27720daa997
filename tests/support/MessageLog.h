#pragma once

#include <QMutex>
#include <QPair>
#include <QStringList>
#include <QVector>

/// Records Qt's log messages from all threads during its lifetime. Only one MessageLog may exist at a time.
class MessageLog
{
public:
    using Entry = QPair<QtMsgType, QString>;

    MessageLog() { s_current = this; }
    ~MessageLog() { qInstallMessageHandler(m_previous); }

    QVector<Entry> entries() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_entries;
    }

    /// Returns the messages that were logged at this level.
    QStringList texts(QtMsgType type) const
    {
        QStringList found;
        for (const auto &[level, text] : entries()) {
            if (level == type)
                found.append(text);
        }
        return found;
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        const QMutexLocker lock(&s_current->m_mutex);
        s_current->m_entries.append({type, text});
    }

    static inline MessageLog *s_current = nullptr; // Qt's message handler is a plain function.
    mutable QMutex m_mutex;
    QVector<Entry> m_entries;
    const QtMessageHandler m_previous = qInstallMessageHandler(handle);
};
