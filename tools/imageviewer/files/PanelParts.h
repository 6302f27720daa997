#pragma once

#include <QString>

class QComboBox;
class QLabel;
class QWidget;

/// Returns a hidden label for messages, which may be long.
QLabel *createMessage(QWidget *parent);

/// Shows a message; an empty text hides the label.
/// @param role The style sheet's name for the kind of message, for example "warning".
void showMessage(QLabel *label, const QString &text, const char *role);

/// Lets the panel be narrower than the longest entry.
void makeNarrow(QComboBox *box);

/// Selects the entry with this data; an unknown one leaves the selection.
void selectData(QComboBox *box, int data);
