#include "tools/imageviewer/numbers/StreamNumbers.h"

StreamNumbers::StreamNumbers(const StreamFigures &figures, const QLocale &locale)
    : m_figures(figures), m_locale(locale)
{ }

QVector<NumberRow> StreamNumbers::rows() const
{
    return {};
}

QString StreamNumbers::rateText() const
{
    return {};
}

QString StreamNumbers::lossText() const
{
    return {};
}

QString StreamNumbers::plainText() const
{
    return {};
}

QString StreamNumbers::number(std::uint64_t value) const
{
    return m_locale.toString(static_cast<qulonglong>(value));
}
