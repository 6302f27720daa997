#pragma once

#include "tools/imageviewer/numbers/LossAdvice.h"
#include "tools/imageviewer/numbers/LossChecks.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QThreadPool>

#include <functional>

/// Advises on losses. Runs the checks of the machine on a thread of its own, only when images are lost, and
/// at most every 30 s.
class LossAdviser : public QObject
{
    Q_OBJECT

public:
    using Checks = std::function<Findings(const LossQuestion &question)>;

    /// @param checks Called on another thread.
    explicit LossAdviser(Checks checks = findLossCauses, QObject *parent = nullptr);

    /// Takes what was lost in the last seconds.
    void update(const RecentLosses &losses, const LossQuestion &question);

    /// Forgets everything, for example when another camera is opened.
    void clear();

    const LossAdvice &advice() const { return m_advice; }

signals:
    void adviceChanged();

private:
    void check(const LossQuestion &question);
    void takeFindings(const Findings &findings, int generation);
    void choose();

    const Checks m_checks;
    RecentLosses m_losses;
    CvxCPP::CvxTransportLayerType m_technology = CvxCPP::CvxTransportLayerUnknown;
    Findings m_findings;
    LossAdvice m_advice;
    QDeadlineTimer m_nextCheck{0};
    bool m_isChecking = false;
    int m_generation = 0; // Grows with clear(), so that findings about another camera are ignored.
    QThreadPool m_pool; // Ends before the other members.
};
