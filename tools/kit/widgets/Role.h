#pragma once

class QWidget;

/// Changes the property "role", for which the style sheet has rules, and applies the rules of the new role.
void changeRole(QWidget *widget, const char *role);
