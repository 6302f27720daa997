#include "tools/kit/measure/taps/TapLayout.h"

#include <gtest/gtest.h>

TEST(TapGeometry, namesAreUnderstood)
{
    const struct
    {
        const char *name;
        std::optional<TapLayout> layout;
    } rows[] = {
        {"Geometry_1X_1Y", TapLayout{1, 1, 1, 1}},
        {"Geometry_4X_1Y", TapLayout{4, 1, 1, 1}},
        {"Geometry_2XE", TapLayout{2, 1, 1, 1}},
        {"Geometry_2XM_2YE", TapLayout{2, 1, 2, 1}},
        {"Geometry_1X2_2YM", TapLayout{1, 2, 2, 1}},
        {"Geometry_2X2E_1Y2", TapLayout{2, 2, 1, 2}},
        {"Geometry_10X_1Y", TapLayout{10, 1, 1, 1}},
        {"Geometry_1X10_1Y", TapLayout{1, 10, 1, 1}},
        {"Geometry_1X_1Y_2Z", TapLayout{1, 1, 1, 1}},
        {"Geometry_0X_1Y", std::nullopt},
        {"Geometry_99X_9Y", std::nullopt},
        {"Custom", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto &row : rows)
        EXPECT_EQ(parseTapGeometry(row.name), row.layout) << row.name;
}

TEST(TapMap, tapsAreNumberedFromLeftToRightThenDown)
{
    const TapMap map({2, 2, 2, 1}, {}, 8, 4);
    std::string text;
    for (std::size_t y = 0; y < 4; ++y) {
        for (std::size_t x = 0; x < 8; ++x)
            text += static_cast<char>('0' + map.tapAt(x, y));
        text += ' ';
    }
    EXPECT_EQ(text, "01012323 01012323 45456767 45456767 ");
    EXPECT_EQ(zoneBorders(map.columns()), std::vector<std::size_t>{4});
    EXPECT_EQ(zoneBorders(map.lines()), std::vector<std::size_t>{2});
}

TEST(TapMap, pictureIsAPartOfTheSensor)
{
    SensorPlace place;
    place.sensorWidth = 100; // The first zone has 34 columns, the second one ends at 67.
    place.offsetX = 30;
    EXPECT_EQ(zoneBorders(TapMap({3, 1, 1, 1}, place, 40, 1).columns()), (std::vector<std::size_t>{4, 37}));
    place.isReversedX = true;
    EXPECT_EQ(zoneBorders(TapMap({3, 1, 1, 1}, place, 40, 1).columns()), (std::vector<std::size_t>{3, 36}));
    EXPECT_EQ(TapMap({3, 1, 1, 1}, place, 40, 1).tapAt(0, 0), 2U);
    place = {};
    place.sensorWidth = 100;
    place.binningX = 2;
    EXPECT_EQ(zoneBorders(TapMap({2, 1, 1, 1}, place, 50, 1).columns()), std::vector<std::size_t>{25});
}
