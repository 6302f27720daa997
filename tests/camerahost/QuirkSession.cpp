#include "tests/camerahost/QuirkSession.h"

#include <gtest/gtest.h>

std::string replaced(std::string text, const std::string &part, const std::string &by)
{
    const auto place = text.find(part);
    EXPECT_NE(place, std::string::npos) << part;
    return place == std::string::npos ? text : text.replace(place, part.size(), by);
}
