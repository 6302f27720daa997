#pragma once

#include "sdk/doctor/StreamCheck.h"
#include "tools/imageviewer/numbers/LossAdvice.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>

#include <functional>

/// Runs the checks of the machine on a thread of its own when images are lost, at most every 30 s.
class LossAdviser : public QObject
{
    Q_OBJECT

public:
    /// What the checks are about.
    struct Question
    {
        std::string camera; ///< Name of the camera.
        CvxCPP::CvxTransportLayerType technology = CvxCPP::CvxTransportLayerUnknown;
        StreamReport report; ///< The stream so far.
    };

    using Checks = std::function<Findings(const Question &question)>;

    explicit LossAdviser(QObject *parent = nullptr);

    /// @param checks Called on another thread.
    explicit LossAdviser(Checks checks, QObject *parent = nullptr);

    /// Takes what was lost in the last seconds. Advice that was found stays until nothing is lost any more.
    void update(const RecentLosses &losses, const Question &question);

    /// Forgets the advice, for example when another camera is opened.
    void clear();

    const LossAdvice &advice() const { return m_advice; }

signals:
    void adviceChanged();

private:
    void setAdvice(const LossAdvice &advice);
    void takeFindings(const Findings &findings);

    const Checks m_checks;
    RecentLosses m_losses;
    Question m_question;
    Findings m_findings;
    LossAdvice m_advice;
    QElapsedTimer m_sinceCheck;
    bool m_isChecking = false;
    QThreadPool m_pool; // Ends before the other members.
};
