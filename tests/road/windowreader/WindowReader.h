#pragma once

#include "tests/road/windowreader/AnswerSocket.h"

#include <QObject>
#include <QString>

/// Answers at its socket with the program's visible windows, as JSON.
class WindowReader : public QObject
{
    Q_OBJECT

public:
    explicit WindowReader(const QString &socketPath);

private:
    AnswerSocket m_socket;
};
