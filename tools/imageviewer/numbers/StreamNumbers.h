#pragma once

#include "CvxCPP/Device.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QVector>

#include <cstdint>
#include <optional>

/// What is known about a stream at a moment.
struct StreamFigures
{
    CvxCPP::StreamStatistics totals; ///< Since the camera was opened.
    std::uint64_t shown = 0;
    std::uint64_t skippedForDisplay = 0; ///< Received, but never shown; recordings contain them.
    unsigned usedBuffers = 0;
    unsigned buffers = 0; ///< 0 if no stream runs.
    std::optional<std::int64_t> linkSpeed; ///< Bytes per second.
    std::optional<std::int64_t> packetSize; ///< Bytes.
    std::optional<std::int64_t> resends; ///< Packets that the camera has sent again.
};

/// One row of the details page.
struct NumberRow
{
    QString name;
    QString value;
    QString explanation;
    bool isLoss = false; ///< The row counts losses, and there are some.
};

/// Turns the figures of a stream into texts for people.
class StreamNumbers
{
    Q_DECLARE_TR_FUNCTIONS(StreamNumbers)

public:
    explicit StreamNumbers(const StreamFigures &figures, const QLocale &locale = QLocale());

    /// Returns all numbers. What the camera or its producer does not tell says so.
    QVector<NumberRow> rows() const;

    /// Returns rate and data rate, for example "30.0 images/s · 150 MB/s".
    QString rateText() const;

    /// Returns what was lost, for example "3 lost, 1 incomplete"; empty if nothing was.
    QString lossText() const;

    /// Returns how many buffers are in use, for example "3 of 8".
    QString bufferText() const;

    /// Returns the rows as text with one line each.
    QString plainText() const;

private:
    QString number(std::uint64_t value) const;
    QString imageRate() const;
    QString dataRate() const;
    QString linkText() const;
    static QString notReported();

    StreamFigures m_figures;
    QLocale m_locale;
};
