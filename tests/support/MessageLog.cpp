#include "tests/support/MessageLog.h"

#include <QMutexLocker>
#include <QStringList>

namespace {

MessageLog *current = nullptr; // Qt's handler is a plain function.

} // namespace

MessageLog::MessageLog()
{
    Q_ASSERT(!current);
    current = this;
    m_previous = qInstallMessageHandler(handle);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_previous);
    current = nullptr;
}

QVector<MessageLog::Entry> MessageLog::entries() const
{
    const QMutexLocker lock(&m_mutex);
    return m_entries;
}

QStringList MessageLog::texts(QtMsgType type) const
{
    QStringList found;
    for (const Entry &entry : entries()) {
        if (entry.type == type)
            found.append(entry.text);
    }
    return found;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QMutexLocker lock(&current->m_mutex);
    current->m_entries.append({type, text});
}
