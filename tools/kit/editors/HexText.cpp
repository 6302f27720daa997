#include "tools/kit/editors/HexText.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr std::uint8_t firstPrintable = 0x20;
constexpr std::uint8_t lastPrintable = 0x7E;
constexpr char16_t lastAscii = 0x7F;
constexpr int fewestOffsetDigits = 4;

QString twoDigits(std::uint8_t byte)
{
    return QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper();
}

/// Appends the bytes of one number. Returns false if it is none.
bool appendNumber(QString digits, std::vector<std::uint8_t> &bytes)
{
    if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        digits.remove(0, 2);
    if (digits.size() == 1)
        digits.prepend(QLatin1Char('0'));
    if (digits.isEmpty() || digits.size() % 2 != 0)
        return false;
    for (int place = 0; place < digits.size(); place += 2) {
        const auto high = hexDigit(digits[place]);
        const auto low = hexDigit(digits[place + 1]);
        if (!high || !low)
            return false;
        bytes.push_back(static_cast<std::uint8_t>(*high << 4 | *low));
    }
    return true;
}

} // namespace

QString hexText(const std::vector<std::uint8_t> &bytes)
{
    QStringList texts;
    for (const std::uint8_t byte : bytes)
        texts.append(twoDigits(byte));
    return texts.join(QLatin1Char(' '));
}

std::optional<std::vector<std::uint8_t>> parseHexText(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,;:-]+"));
    std::vector<std::uint8_t> bytes;
    const QStringList numbers = text.split(separators, Qt::SkipEmptyParts);
    for (const QString &number : numbers) {
        if (!appendNumber(number, bytes))
            return std::nullopt;
    }
    return bytes.empty() ? std::nullopt : std::optional(bytes);
}

QChar asciiCharacter(std::uint8_t byte)
{
    return QLatin1Char(byte >= firstPrintable && byte <= lastPrintable ? static_cast<char>(byte) : '.');
}

QString asciiText(const std::vector<std::uint8_t> &bytes)
{
    QString text;
    for (const std::uint8_t byte : bytes)
        text.append(asciiCharacter(byte));
    return text;
}

std::optional<std::vector<std::uint8_t>> parseAsciiText(const QString &text)
{
    std::vector<std::uint8_t> bytes;
    for (const QChar character : text) {
        if (character.unicode() > lastAscii)
            return std::nullopt;
        bytes.push_back(static_cast<std::uint8_t>(character.unicode()));
    }
    return bytes;
}

std::optional<unsigned> hexDigit(QChar character)
{
    bool isDigit = false;
    const unsigned value = QString(character).toUInt(&isDigit, 16);
    return isDigit ? std::optional(value) : std::nullopt;
}

QString offsetText(std::size_t offset, std::size_t size)
{
    const int digits = QString::number(static_cast<qulonglong>(size > 0 ? size - 1 : 0), 16).size();
    return QStringLiteral("%1")
        .arg(static_cast<qulonglong>(offset), qMax(fewestOffsetDigits, digits), 16, QLatin1Char('0'))
        .toUpper();
}
