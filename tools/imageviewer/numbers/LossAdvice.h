#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/doctor/Finding.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

/// What was lost in the last seconds.
struct RecentLosses
{
    std::uint64_t lost = 0; ///< By gaps in the frame IDs.
    std::uint64_t incomplete = 0;
    std::uint64_t underruns = 0; ///< For want of a free buffer.

    bool isEmpty() const { return lost == 0 && incomplete == 0 && underruns == 0; }
};

/// The likely cause of losses and its correction.
struct LossAdvice
{
    Q_DECLARE_TR_FUNCTIONS(LossAdvice)

public:
    QString text; ///< What was lost, and why; empty if nothing was lost.
    QString command; ///< The command that corrects it or shows more; may be empty.

    /// Chooses what to say about losses: the first warning among the findings, then the first notice, then
    /// what is usual for the technology.
    /// @param technology How the camera is connected.
    /// @param findings What can explain losses, the most specific finding first.
    static LossAdvice choose(
        const RecentLosses &losses, CvxCPP::CvxTransportLayerType technology, const Findings &findings);
};
