#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/doctor/Finding.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

/// What was lost in the last seconds.
struct RecentLosses
{
    std::uint64_t lost = 0;
    std::uint64_t incomplete = 0;
    std::uint64_t underruns = 0;

    bool isEmpty() const { return lost == 0 && incomplete == 0 && underruns == 0; }
};

/// The likely cause of losses and its correction.
struct LossAdvice
{
    Q_DECLARE_TR_FUNCTIONS(LossAdvice)

public:
    QString text; ///< One or two sentences; empty if nothing was lost.
    QString command; ///< The command that corrects it or shows more; may be empty.

    /// Chooses what to say about losses.
    /// @param technology How the camera is connected.
    /// @param findings What the checks of the machine and of the stream have found.
    static LossAdvice choose(
        const RecentLosses &losses, CvxCPP::CvxTransportLayerType technology, const Findings &findings);
};
