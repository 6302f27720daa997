#include "tools/kit/widgets/StepList.h"

#include "tools/kit/widgets/StepCard.h"

#include <QVBoxLayout>

StepList::StepList(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(8);
}

StepCard *StepList::addStep(const QString &title, const QString &text, const QString &buttonText)
{
    auto *const card = new StepCard(m_steps.size() + 1, title, text, buttonText, this);
    m_steps.append(card);
    m_layout->addWidget(card);
    setCurrent(m_current);
    return card;
}

void StepList::setCurrent(int index)
{
    m_current = index;
    for (int step = 0; step < m_steps.size(); ++step) {
        const bool isLater = step > index;
        m_steps.at(step)->setState(step < index ? StepCard::State::Done
                : isLater                       ? StepCard::State::Pending
                                                : StepCard::State::Current);
    }
}

void StepList::setBusy(bool isBusy)
{
    for (StepCard *const step : qAsConst(m_steps))
        step->setButtonAllowed(!isBusy);
}

void StepList::reset()
{
    for (StepCard *const step : qAsConst(m_steps))
        step->setResult({});
    setCurrent(0);
}
