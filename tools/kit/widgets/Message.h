#pragma once

#include <QString>

class QLabel;
class QWidget;

/// Returns a hidden label for messages, which may be long.
QLabel *createMessage(QWidget *parent = nullptr);

/// Shows a message; an empty text hides the label.
/// @param role The style sheet's name for the kind of message, for example "warning".
void showMessage(QLabel *label, const QString &text, const char *role);
