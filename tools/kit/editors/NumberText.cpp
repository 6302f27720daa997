#include "tools/kit/editors/NumberText.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

using CvxCPP::NodeRepresentation;

namespace {

constexpr int usefulDigits = 7; ///< Cameras often calculate with floats of 32 bits, which have no more.
constexpr double largestWithoutExponent = 1e15;
constexpr double smallestWithoutExponent = 1e-6;

/// Returns the lowest `count` bytes of the number, the highest of them first.
QString joinBytes(std::int64_t value, int count, int base, QChar separator)
{
    QStringList texts;
    for (int byte = count - 1; byte >= 0; --byte) {
        const auto number = static_cast<unsigned>(static_cast<std::uint64_t>(value) >> (8 * byte) & 0xFFU);
        texts.append(base == 16 ? QStringLiteral("%1").arg(number, 2, 16, QLatin1Char('0')).toUpper()
                                : QString::number(number));
    }
    return texts.join(separator);
}

std::optional<std::int64_t> parseBytes(const QString &text, int count, int base, QChar separator)
{
    const QStringList texts = text.split(separator);
    if (texts.size() != count)
        return std::nullopt;
    std::uint64_t value = 0;
    for (const QString &byte : texts) {
        bool isNumber = false;
        const unsigned number = byte.toUInt(&isNumber, base);
        if (!isNumber || number > 0xFF)
            return std::nullopt;
        value = value << 8 | number;
    }
    return static_cast<std::int64_t>(value);
}

std::optional<std::int64_t> parseHexadecimal(const QString &text)
{
    bool isNumber = false;
    const qulonglong value = text.toULongLong(&isNumber, 16);
    return isNumber ? std::optional(static_cast<std::int64_t>(value)) : std::nullopt;
}

std::optional<std::int64_t> parseDecimal(const QString &text)
{
    bool isNumber = false;
    for (const QLocale &locale : {QLocale(), QLocale::c()}) {
        const qlonglong value = locale.toLongLong(text, &isNumber);
        if (isNumber)
            return value;
    }
    return std::nullopt;
}

QString withoutSpaces(const QString &text)
{
    return text.simplified().remove(QLatin1Char(' '));
}

} // namespace

QString integerText(std::int64_t value, NodeRepresentation representation)
{
    switch (representation) {
    case NodeRepresentation::HexNumber:
        return QStringLiteral("0x") + QString::number(static_cast<qulonglong>(value), 16).toUpper();
    case NodeRepresentation::IPv4Address:
        return joinBytes(value, 4, 10, QLatin1Char('.'));
    case NodeRepresentation::MacAddress:
        return joinBytes(value, 6, 16, QLatin1Char(':'));
    default:
        return QString::number(value);
    }
}

std::optional<std::int64_t> parseInteger(const QString &text, NodeRepresentation representation)
{
    const QString number = withoutSpaces(text);
    if (representation == NodeRepresentation::IPv4Address && number.contains(QLatin1Char('.')))
        return parseBytes(number, 4, 10, QLatin1Char('.'));
    if (representation == NodeRepresentation::MacAddress && number.contains(QLatin1Char(':')))
        return parseBytes(number, 6, 16, QLatin1Char(':'));
    if (number.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        return parseHexadecimal(number);
    return parseDecimal(number);
}

QString floatText(double value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const double size = std::abs(value);
    if (size != 0 && (size >= largestWithoutExponent || size < smallestWithoutExponent))
        return locale.toString(value, 'g', usefulDigits);
    const int digitsBefore = size < 1 ? 0 : static_cast<int>(std::floor(std::log10(size))) + 1;
    // Small values keep their digits after the leading zeros.
    const int leadingZeros = size == 0 || size >= 1 ? 0 : -static_cast<int>(std::floor(std::log10(size))) - 1;
    const int decimals = std::max(0, usefulDigits - digitsBefore) + leadingZeros;
    QString text = locale.toString(value, 'f', decimals);
    if (decimals == 0)
        return text;
    while (text.endsWith(locale.zeroDigit()))
        text.chop(1);
    if (text.endsWith(locale.decimalPoint()))
        text.chop(1);
    return text;
}

std::optional<double> parseFloat(const QString &text)
{
    const QString number = withoutSpaces(text);
    // The point first: in some locales it separates groups, and "1.5" would be 15.
    for (const QLocale &locale : {QLocale::c(), QLocale()}) {
        QLocale strict = locale;
        strict.setNumberOptions(QLocale::RejectGroupSeparator);
        bool isNumber = false;
        const double value = strict.toDouble(number, &isNumber);
        if (isNumber && std::isfinite(value))
            return value;
    }
    return std::nullopt;
}

QString entryText(const CvxCPP::NodeInfo &info, const std::string &name)
{
    const auto entry = std::find_if(info.entries.begin(), info.entries.end(),
        [&name](const CvxCPP::EnumerationEntry &candidate) { return candidate.name == name; });
    const bool hasText = entry != info.entries.end() && !entry->displayName.empty();
    return QString::fromStdString(hasText ? entry->displayName : name);
}

QString unitText(const std::string &unit)
{
    static const std::array<std::pair<const char *, const char *>, 5> units{
        {{"us", "\u00b5s"}, {"um", "\u00b5m"}, {"C", "\u00b0C"}, {"deg", "\u00b0"}, {"Percent", "%"}}};
    for (const auto &[name, text] : units) {
        if (unit == name)
            return QString::fromUtf8(text);
    }
    return QString::fromStdString(unit);
}
