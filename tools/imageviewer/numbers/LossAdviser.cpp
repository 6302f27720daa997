#include "tools/imageviewer/numbers/LossAdviser.h"

LossAdviser::LossAdviser(QObject *parent) : QObject(parent) { }
LossAdviser::LossAdviser(Checks checks, QObject *parent) : QObject(parent), m_checks(std::move(checks)) { }

void LossAdviser::update(const RecentLosses &losses, const Question &question)
{
    m_losses = losses;
    m_question = question;
}

void LossAdviser::clear()
{
    setAdvice({});
}

void LossAdviser::setAdvice(const LossAdvice &advice)
{
    m_advice = advice;
    emit adviceChanged();
}

void LossAdviser::takeFindings(const Findings &findings)
{
    m_findings = findings;
}
