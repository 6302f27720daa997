#include "tools/imageviewer/numbers/LossAdviser.h"

LossAdviser::LossAdviser(Checks checks, QObject *parent) : QObject(parent), m_checks(std::move(checks))
{
    m_pool.setMaxThreadCount(1);
}

void LossAdviser::update(const RecentLosses &losses, const LossQuestion &question)
{
    m_losses = losses;
    m_technology = question.technology;
    if (!losses.isEmpty() && !m_isChecking && m_nextCheck.hasExpired())
        check(question);
    choose();
}

void LossAdviser::clear()
{
    ++m_generation;
    m_losses = {};
    m_findings.clear();
    m_nextCheck.setRemainingTime(0);
    choose();
}

void LossAdviser::check(const LossQuestion &question)
{
    constexpr qint64 interval = 30000;
    m_nextCheck.setRemainingTime(interval);
    m_isChecking = true;
    m_pool.start([this, question, generation = m_generation] {
        const Findings findings = m_checks(question);
        QMetaObject::invokeMethod(
            this, [this, findings, generation] { takeFindings(findings, generation); }, Qt::QueuedConnection);
    });
}

void LossAdviser::takeFindings(const Findings &findings, int generation)
{
    m_isChecking = false;
    if (generation != m_generation)
        return;
    m_findings = findings;
    choose();
}

void LossAdviser::choose()
{
    const LossAdvice advice = LossAdvice::choose(m_losses, m_technology, m_findings);
    if (advice.text == m_advice.text && advice.command == m_advice.command)
        return;
    m_advice = advice;
    emit adviceChanged();
}
