#pragma once

#include <QMutex>
#include <QString>
#include <QVector>

/// Catches Qt's message log while it lives, from every thread. One at a time.
class MessageLog
{
public:
    struct Entry
    {
        QtMsgType type;
        QString text;
    };

    MessageLog();
    ~MessageLog();

    QVector<Entry> entries() const;

    /// The texts logged at this level.
    QStringList texts(QtMsgType type) const;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    mutable QMutex m_mutex;
    QVector<Entry> m_entries;
    QtMessageHandler m_previous;
};
