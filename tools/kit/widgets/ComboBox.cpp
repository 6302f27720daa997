#include "tools/kit/widgets/ComboBox.h"

#include <QComboBox>

void makeNarrow(QComboBox *box)
{
    constexpr int characters = 12;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(characters);
}

void selectData(QComboBox *box, int data)
{
    const int index = box->findData(data);
    if (index >= 0)
        box->setCurrentIndex(index);
}
