#include "core/letter_case.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "platform/hostile_environment.h"

namespace quorvel {
namespace {

struct LetterCaseRow {
    char16_t letter;
    char16_t upper;
    char16_t lower;
};

constexpr LetterCaseRow kLetters[] = {
    {u'i', u'I', u'i'},
    {u'I', u'I', u'i'},
    {u'7', u'7', u'7'},
    {u'\u00E9', u'\u00C9', u'\u00E9'},  // e with acute
    {u'\u00C9', u'\u00C9', u'\u00E9'},
    {u'\u00DF', u'\u00DF', u'\u00DF'},  // sharp s: "SS" is no single letter
    {u'\u1E9E', u'\u1E9E', u'\u00DF'},  // capital sharp s
    {u'\u00FF', u'\u0178', u'\u00FF'},  // y with diaeresis, whose capital is outside Latin-1
    {u'\u00D7', u'\u00D7', u'\u00D7'},  // multiplication sign
    {u'\u0131', u'I', u'\u0131'},       // dotless i
    {u'\u0130', u'\u0130', u'i'},       // I with dot
    {u'\u0142', u'\u0141', u'\u0142'},  // l with stroke
    {u'\u0149', u'\u0149', u'\u0149'},  // n after an apostrophe: no single capital
    {u'\u017F', u'S', u'\u017F'},       // long s
    {u'\u01C4', u'\u01C4', u'\u01C6'},  // DZ with caron, capital
    {u'\u01C5', u'\u01C4', u'\u01C6'},  // the same, title case
    {u'\u01C6', u'\u01C4', u'\u01C6'},  // the same, small
    {u'\u03AC', u'\u0386', u'\u03AC'},  // Greek alpha with tonos
    {u'\u03C2', u'\u03A3', u'\u03C2'},  // Greek final sigma
    {u'\u03A3', u'\u03A3', u'\u03C3'},
    {u'\u0436', u'\u0416', u'\u0436'},  // Cyrillic zhe
    {u'\u0453', u'\u0403', u'\u0453'},  // Cyrillic gje
    {u'\u0561', u'\u0531', u'\u0561'},  // Armenian ayb
    {u'\u10D0', u'\u1C90', u'\u10D0'},  // Georgian an
    {u'\u05D0', u'\u05D0', u'\u05D0'},  // Hebrew alef
    {u'\u1EA5', u'\u1EA4', u'\u1EA5'},  // Vietnamese a
    {u'\u1F80', u'\u1F88', u'\u1F80'},  // Greek alpha with psili and ypogegrammeni
    {u'\u212A', u'\u212A', u'k'},       // Kelvin sign
    {u'\u4E2D', u'\u4E2D', u'\u4E2D'},  // Han
    {u'\xD801', u'\xD801', u'\xD801'},  // surrogates
    {u'\xDC28', u'\xDC28', u'\xDC28'},
    {u'\uFF41', u'\uFF41', u'\uFF41'},  // full-width a: beyond what the port maps
};

/// FNV-1a over both mappings of every unit.
std::uint64_t digestOfAllMappings() {
    std::uint64_t digest = 0xCBF29CE484222325;
    const auto add = [&](char16_t unit) {
        for (const int shift : {0, 8}) {
            digest = (digest ^ (static_cast<std::uint64_t>(unit) >> shift & 0xFF)) * 0x100000001B3;
        }
    };
    for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
        add(letterCase().toUpper(static_cast<char16_t>(unit)));
        add(letterCase().toLower(static_cast<char16_t>(unit)));
    }
    return digest;
}

// The same in every build: Unicode 14, as glibc 2.36 and Wine 8 have it. Another system library with
// other tables changes it, and then a look at what changed is due.
constexpr std::uint64_t kDigest = 0x9F7B503702A61B96;

TEST(LetterCase, MapsOneUnitToOne) {
    for (const LetterCaseRow& row : kLetters) {
        EXPECT_EQ(letterCase().toUpper(row.letter), row.upper) << std::hex << +row.letter;
        EXPECT_EQ(letterCase().toLower(row.letter), row.lower) << std::hex << +row.letter;
    }
}

TEST(LetterCase, EveryUnitIsMappedAlikeInEveryBuild) {
    EXPECT_EQ(digestOfAllMappings(), kDigest);
}

TEST(LetterCase, TheUsersCountryDoesNotMatter) {
    for (const tests::Country& country : tests::kHostileCountries) {
        SCOPED_TRACE(country.posixLocale);
        const tests::HostileEnvironment environment(country);
        if (!environment.isInForce()) {
            GTEST_SKIP() << "no locale " << country.posixLocale << " on this machine";
        }
        EXPECT_EQ(digestOfAllMappings(), kDigest);
    }
}

TEST(LetterCase, IsLeftAsideInComparisons) {
    EXPECT_EQ(findIgnoringCase(u"Trans. OF the Original", u"of"), 7U);
    EXPECT_EQ(findIgnoringCase(u"\u00C9DITION, \u00E9dition", u"\u00E9DITION", 1), 9U);
    EXPECT_EQ(findIgnoringCase(u"ed", u"eds"), TextView::npos);
    EXPECT_EQ(findIgnoringCase(u"ed", u"", 2), 2U);
    EXPECT_EQ(findIgnoringCase(u"ed", u"", 3), TextView::npos);
    EXPECT_TRUE(endsWithIgnoringCase(u"2nd ED.", u" ed."));
    EXPECT_FALSE(endsWithIgnoringCase(u"d.", u" ed."));
}

}  // namespace
}  // namespace quorvel
