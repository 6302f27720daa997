#pragma once

#include "tools/kit/measure/run/Sentence.h"

#include <QString>

/// Returns the sentence in the language of the program.
QString translatedSentence(const Sentence &sentence);
