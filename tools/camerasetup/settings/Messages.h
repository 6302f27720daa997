#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QObject;
class QWidget;

// Message boxes that do not block the caller.

/// Says what has failed.
void showFailure(QWidget *parent, const QString &title, const QString &text);

/// Shows a sentence with a list of remarks, which may be long and can be copied.
void showNotes(QWidget *parent, const QString &title, const QString &text, const QStringList &notes);

/// Asks before something is overwritten; the safe answer is the default. `accepted` is called if the answer
/// is yes, unless the context was destroyed.
void askToOverwrite(QWidget *parent, const QString &title, const QString &text, const QString &acceptText,
    QObject *context, const std::function<void()> &accepted);
