#pragma once

#include <QString>

#include <functional>

class QMessageBox;
class QObject;
class QWidget;

// Message boxes that do not block the caller.

/// Says what has failed.
void showFailure(QWidget *parent, const QString &title, const QString &text);

/// Asks before something is overwritten; the safe answer is the default. `accepted` is called if the answer
/// is yes, unless the context was destroyed. Returns the box, which is deleted when it is closed.
QMessageBox *askToOverwrite(QWidget *parent, const QString &title, const QString &text,
    const QString &acceptText, QObject *context, const std::function<void()> &accepted);
