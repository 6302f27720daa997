#include "tools/kit/measure/run/Sentence.h"

#include <gtest/gtest.h>

TEST(Sentence, placesAreReplacedOnce)
{
    const Sentence sentence{"%2 of %1 are at %3 %; %4 %",
        {std::string("100 %2"), SentenceNumber{7.25, 1}, SentenceNumber{-0.0005, 3}}};
    EXPECT_EQ(toEnglish(sentence), "7.2 of 100 %2 are at -0.001 %; %4 %");
}

TEST(Sentence, textOfACallIsNotASentenceIfItIsEmpty)
{
    EXPECT_TRUE(untranslated("").isEmpty());
    EXPECT_EQ(toEnglish(untranslated("")), "");
    EXPECT_EQ(toEnglish(untranslated("100 %1 failed")), "100 %1 failed");
}
