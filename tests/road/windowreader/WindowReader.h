#pragma once

#include <QObject>
#include <QString>

/// Answers every connection to its Unix socket with the program's visible windows, as JSON, and closes it.
class WindowReader : public QObject
{
    Q_OBJECT

public:
    explicit WindowReader(const QString &socketPath);
    ~WindowReader() override;

private:
    void answer() const;

    int m_socket;
};
