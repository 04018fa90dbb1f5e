#include "elements/volume_numbers.h"

#include <gtest/gtest.h>

#include "support/shown.h"

namespace quorvel {
namespace {

TEST(VolumeNumbers, RomanToArabic) {
    struct Case {
        TextView numeral;
        std::int32_t value;
    };
    const Case kCases[] = {
        {u"I", 1},    {u"iv", 4}, {u"XC", 90}, {u"MCMXCIV", 1994}, {u"MDC", 1600},   {u"CC", 200},
        {u"Iiii", 4}, {u"C", 0},  {u"d", 0},   {u"", 0},           {u"I and II", 0}, {u"I, II", 0},
        {u"12", 0},   {u"V.", 0}, {u"IX ", 0}, {u"\u2163", 0},     {u"mix", 1009},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(volumenumbers::romanToArabic(c.numeral), c.value) << shown(c.numeral);
    }
    EXPECT_EQ(volumenumbers::romanToArabic(Text(5'000'000, u'M')), 0);
}

TEST(VolumeNumbers, WithoutWord) {
    EXPECT_EQ(volumenumbers::withoutWord(u"vol. 2"), u"2");
    EXPECT_EQ(volumenumbers::withoutWord(u"Volume XII"), u"XII");
    EXPECT_EQ(volumenumbers::withoutWord(u"Vols. 3-4"), u"3-4");
    EXPECT_EQ(volumenumbers::withoutWord(u"2"), u"2");
    EXPECT_EQ(volumenumbers::withoutWord(u"vol."), u"vol.");
}

}  // namespace
}  // namespace quorvel
