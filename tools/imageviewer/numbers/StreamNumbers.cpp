#include "tools/imageviewer/numbers/StreamNumbers.h"

StreamNumbers::StreamNumbers(const StreamFigures &figures, const QLocale &locale)
    : m_figures(figures), m_locale(locale)
{ }

QVector<NumberRow> StreamNumbers::rows() const
{
    const CvxCPP::StreamStatistics &totals = m_figures.totals;
    return {
        {tr("Delivered"), number(totals.delivered), tr("Images that arrived from the camera."), false},
        {tr("Shown"), number(m_figures.shown), tr("Images that were drawn in the window."), false},
        {tr("Skipped for display"), number(m_figures.skippedForDisplay),
            tr("Images that were not drawn because the screen is slower than the camera. They are not lost: "
               "recordings contain them."),
            false},
        {tr("Incomplete"), number(totals.incomplete), tr("Delivered images with missing data."),
            totals.incomplete > 0},
        {tr("Lost"), number(totals.lost), tr("Images that never arrived, by gaps in the frame IDs."),
            totals.lost > 0},
        {tr("Underruns"), number(totals.underruns),
            tr("Images that were lost because no buffer was free: this computer was too slow."),
            totals.underruns > 0},
        {tr("Rate"), imageRate(), tr("Images per second during the last second."), false},
        {tr("Data rate"), dataRate(), tr("Image data per second during the last second."), false},
        {tr("Buffers in use"), bufferText(),
            tr("Buffers that hold an image which is shown, measured or recorded. If all of them are in use, "
               "images are lost."),
            m_figures.buffers > 0 && m_figures.usedBuffers >= m_figures.buffers},
        {tr("Link speed"), linkText(), tr("Speed of the connection that the camera reports."), false},
        {tr("Packet size"),
            m_figures.packetSize ? tr("%1 bytes").arg(m_locale.toString(qlonglong(*m_figures.packetSize)))
                                 : notReported(),
            tr("Size of the packets of a GigE camera."), false},
        {tr("Resent packets"),
            m_figures.resends ? m_locale.toString(qlonglong(*m_figures.resends)) : notReported(),
            tr("Packets that the camera has sent a second time because they were lost."), false},
        {tr("Continued after a loss"), number(totals.reopenCount),
            tr("How often the camera was lost and the stream went on when it was back."),
            totals.reopenCount > 0},
    };
}

QString StreamNumbers::rateText() const
{
    return tr("%1 · %2", "rate and data rate").arg(imageRate(), dataRate());
}

QString StreamNumbers::lossText() const
{
    const CvxCPP::StreamStatistics &totals = m_figures.totals;
    QStringList parts;
    if (totals.lost > 0)
        parts << tr("%1 lost").arg(number(totals.lost));
    if (totals.incomplete > 0)
        parts << tr("%1 incomplete").arg(number(totals.incomplete));
    if (totals.underruns > 0)
        parts << tr("%1 underruns").arg(number(totals.underruns));
    return parts.join(QStringLiteral(", "));
}

QString StreamNumbers::bufferText() const
{
    if (m_figures.buffers == 0)
        return tr("no stream");
    return tr("%1 of %2", "buffers").arg(m_figures.usedBuffers).arg(m_figures.buffers);
}

QString StreamNumbers::plainText() const
{
    QString text;
    for (const NumberRow &row : rows())
        text += tr("%1: %2", "name and value").arg(row.name, row.value) + QLatin1Char('\n');
    return text;
}

QString StreamNumbers::number(std::uint64_t value) const
{
    return m_locale.toString(static_cast<qulonglong>(value));
}

QString StreamNumbers::imageRate() const
{
    const double rate = m_figures.totals.imagesPerSecond;
    constexpr double fast = 100; // At this rate or above, tenths of an image are meaningless.
    return tr("%1 images/s").arg(m_locale.toString(rate, 'f', rate < fast ? 1 : 0));
}

QString StreamNumbers::dataRate() const
{
    constexpr double mega = 1e6;
    const double rate = m_figures.totals.bytesPerSecond / mega;
    return tr("%1 MB/s").arg(m_locale.toString(rate, 'f', 1));
}

QString StreamNumbers::linkText() const
{
    if (!m_figures.linkSpeed)
        return notReported();
    constexpr double bitsPerByte = 8, mega = 1e6, giga = 1e9;
    const double bits = static_cast<double>(*m_figures.linkSpeed) * bitsPerByte;
    return bits < giga ? tr("%1 Mbit/s").arg(m_locale.toString(bits / mega, 'g', 4))
                       : tr("%1 Gbit/s").arg(m_locale.toString(bits / giga, 'g', 4));
}

QString StreamNumbers::notReported()
{
    return tr("not reported");
}
