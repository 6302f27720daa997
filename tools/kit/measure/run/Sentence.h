#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

// Marks an English text for the translation catalogues. Qt defines the macro in the same way.
#define QT_TRANSLATE_NOOP(scope, x) x

/// A number within a sentence. Each language writes it in its own way.
struct SentenceNumber
{
    double value = 0;
    int decimals = 0; ///< Digits after the decimal point.
};

/// A sentence for people that code without Qt makes: for a terminal in English, for a window in its language.
/// It says what has happened and what to do next. Without text, there is nothing to say.
struct Sentence
{
    using Part = std::variant<std::string, SentenceNumber>;

    const char *text = nullptr; ///< Marked with QT_TRANSLATE_NOOP("Sentence", …); has the places %1, %2 …
    std::vector<Part> parts = {}; ///< What replaces the places; texts are not translated.

    bool isEmpty() const { return !text; }
};

/// Returns a sentence that consists of this text, for example of CvxResult::text; empty if the text is.
Sentence untranslated(const std::string &text);

/// Returns the sentence in English, with numbers as C writes them.
std::string toEnglish(const Sentence &sentence);
