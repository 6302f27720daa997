#pragma once

class QComboBox;

/// Lets the box be narrower than its longest entry.
void makeNarrow(QComboBox *box);

/// Selects the entry with this data; an unknown one leaves the selection.
void selectData(QComboBox *box, int data);
