#include "tools/kit/assistant/SentenceText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace {

/// Contexts of the message catalogues that contain such sentences.
constexpr const char *contexts[] = {"Measure", "Sentence"};

QString translated(const char *text)
{
    const QString english = QString::fromUtf8(text);
    for (const char *const context : contexts) {
        const QString translation = QCoreApplication::translate(context, text);
        if (translation != english)
            return translation;
    }
    return english;
}

QString partText(const Sentence::Part &part)
{
    if (const auto *const number = std::get_if<SentenceNumber>(&part))
        return QLocale().toString(number->value, 'f', number->decimals);
    return QString::fromStdString(std::get<std::string>(part));
}

} // namespace

QString translatedSentence(const Sentence &sentence)
{
    if (sentence.isEmpty())
        return {};
    const QString text = translated(sentence.text);
    QString result;
    // QString::arg() would also replace places within parts, for example in the name of a camera.
    for (int i = 0; i < text.size(); ++i) {
        const int place
            = text.at(i) == QLatin1Char('%') && i + 1 < text.size() ? text.at(i + 1).digitValue() : -1;
        if (place < 1 || std::size_t(place) > sentence.parts.size()) {
            result += text.at(i);
            continue;
        }
        result += partText(sentence.parts[std::size_t(place) - 1]);
        ++i;
    }
    return result;
}
