#include "elements/online.h"
#include "support/element.h"
#include "support/rows.h"

namespace quorvel {
namespace {

using Online = OutputTemplateOnline;

const OnlineOptions kApa = {true, true, true, u"doi:"};
const OnlineOptions kOthers = {false, false, false, u"doi:"};
const OnlineOptions kResolver = {true, false, false, u"https://doi.org/"};

/// 'u' address, 'e' ERIC number, 'd' database, '-' DOI or plain.
char16_t kindOf(const Online& online) {
    return online.isEric() ? u'e' : online.isDatabase ? u'd' : online.isURL() ? u'u' : u'-';
}

// Texts as they stand in finished references. What each style writes of them is read again with the same values.
TEST(Online, ReadsAndWritesWhatEveryStyleHas) {
    struct Case {
        TextView text;
        char16_t kind;
        TextView online;
        TextView apa;
        TextView others;
        TextView left = {};
    };
    constexpr Case kCases[] = {
        {u"http://www.example.org/a.html", u'u', u"www.example.org/a.html",
         u"Retrieved from http://www.example.org/a.html", u"http://www.example.org/a.html"},
        {u"www.example.org/a.html", u'u', u"www.example.org/a.html", u"Retrieved from http://www.example.org/a.html",
         u"http://www.example.org/a.html"},
        {u"<HTTPS://example.org/?q=a%20b>.", u'u', u"example.org/?q=a%20b",
         u"Retrieved from https://example.org/?q=a%20b", u"https://example.org/?q=a%20b"},
        {u"retrieved from http://example.org/a b", u'u', u"example.org/a b", u"Retrieved from http://example.org/a b",
         u"http://example.org/a b"},
        {u"Retrieved May 5, 2011, from http://example.org/", u'u', u"example.org/",
         u"Retrieved from http://example.org/", u"http://example.org/", u"May 5, 2011"},
        {u"http://example.org. Published May 2, 2008. Accessed May 5, 2009.", u'u', u"example.org",
         u"Retrieved from http://example.org", u"http://example.org", u"Published May 2, 2008. Accessed May 5, 2009"},
        {u"http://example.org (accessed May 5, 2009)", u'u', u"example.org", u"Retrieved from http://example.org",
         u"http://example.org", u"(accessed May 5, 2009)"},
        {u"accessed May 5, 2009, http://example.org.", u'u', u"example.org", u"Retrieved from http://example.org",
         u"http://example.org", u"May 5, 2009"},
        {u"URL: www.example.org", u'u', u"www.example.org", u"Retrieved from http://www.example.org",
         u"http://www.example.org"},
        {u"Advance online publication. doi:10.1000/182", u'-', u"10.1000/182", u"doi:10.1000/182", u"doi:10.1000/182",
         u"Advance online publication"},
        {u"Available from Dissertations and Theses database. (UMI No. 3242185)", u'd', u"Dissertations and Theses",
         u"Retrieved from Dissertations and Theses database", u"Dissertations and Theses database",
         u"(UMI No. 3242185)"},
        {u"(ERIC Document Reproduction Service No. ED346082)", u'e', u"ED346082",
         u"Retrieved from ERIC database. (ED346082)", u"ED346082"},
        {u"ftp://host/file", u'u', u"ftp://host/file", u"Retrieved from ftp://host/file", u"ftp://host/file"},
        {u"doi:10.1000/182", u'-', u"10.1000/182", u"doi:10.1000/182", u"doi:10.1000/182"},
        {u"DOI: 10.1000/182.", u'-', u"10.1000/182", u"doi:10.1000/182", u"doi:10.1000/182"},
        {u"http://dx.doi.org/10.1000/182", u'-', u"10.1000/182", u"doi:10.1000/182", u"doi:10.1000/182"},
        {u"Retrieved from https://dx.doi.org/10.1000/182", u'-', u"10.1000/182", u"doi:10.1000/182",
         u"doi:10.1000/182"},
        {u"http://doi.org/10.1000/182 (accessed May 5, 2009)", u'-', u"10.1000/182", u"doi:10.1000/182",
         u"doi:10.1000/182", u"(accessed May 5, 2009)"},
        {u"https://doi.org/10.1000/182", u'-', u"10.1000/182", u"doi:10.1000/182", u"doi:10.1000/182"},
        {u"10.1000/182", u'-', u"10.1000/182", u"doi:10.1000/182", u"doi:10.1000/182"},
        {u"11.1000/182", u'-', u"11.1000/182", u"doi:11.1000/182", u"doi:11.1000/182"},
        {u"Retrieved from PsycINFO database.", u'd', u"PsycINFO", u"Retrieved from PsycINFO database", u"PsycINFO"},
        {u"database: Kant Papers", u'd', u"Kant Papers", u"Retrieved from Kant Papers database",
         u"Kant Papers database"},
        {u"JSTOR", u'd', u"JSTOR", u"Retrieved from JSTOR database", u"JSTOR"},
        {u"Retrieved from ERIC database. (ED482912)", u'e', u"ED482912", u"Retrieved from ERIC database. (ED482912)",
         u"ED482912"},
        {u"ERIC Document Reproduction Service No. ED 346 082", u'e', u"ED346082",
         u"Retrieved from ERIC database. (ED346082)", u"ED346082"},
        {u"ej695221", u'e', u"EJ695221", u"Retrieved from ERIC database. (EJ695221)", u"EJ695221"},
        {u"Abstract retrieved from http://www.example.org/a", u'u', u"www.example.org/a",
         u"Abstract retrieved from http://www.example.org/a", u"Abstract retrieved from http://www.example.org/a"},
        {u"Abstract: https://example.org/a", u'u', u"example.org/a", u"Abstract retrieved from https://example.org/a",
         u"Abstract retrieved from https://example.org/a"},
        {u"abstract doi:10.1000/182", u'-', u"10.1000/182", u"Abstract retrieved from doi:10.1000/182",
         u"Abstract retrieved from doi:10.1000/182"},
        {u"Abstract retrieved from ERIC database. (ED482912)", u'e', u"ED482912",
         u"Abstract retrieved from ERIC database. (ED482912)", u"Abstract retrieved from ED482912"},
        {u"Abstract:the card catalogue", u'-', u"the card catalogue", u"Abstract retrieved from the card catalogue",
         u"Abstract retrieved from the card catalogue"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Online online = elementWith<Online>(kApa);
        online.isDatabase = true;
        EXPECT_EQ(parsed(online, c.text), c.left);
        for (const TextView text : {c.text, c.apa, c.others}) {
            parsed(online, text);
            EXPECT_EQ(online.Online(), c.online) << shown(text);
            EXPECT_EQ(kindOf(online), c.kind);
            for (const auto& [options, written] : {std::pair(kOthers, c.others), std::pair(kApa, c.apa)}) {
                online.Reset(options);
                EXPECT_EQ(online.toString(false, false, false), written);
                EXPECT_EQ(online.toString(false, true, false), written);
            }
            // In notes, and with a prefix that is the resolver's address.
            online.Reset(kResolver);
            parsed(online, online.toString(true, false, false));
            EXPECT_EQ(online.Online(), c.online);
            EXPECT_EQ(kindOf(online), c.kind);
            online.Reset(kApa);
            EXPECT_EQ(online.toString(false, false, false), c.apa);
        }
    }
}

TEST(Online, TellsAnAddressWithoutSchemeFromOtherTexts) {
    const auto kAddresses = rows(
        u"www.x || WWW.example.invalid/a || ftp.example || example.org || Example.ORG/a/b?c=1%20d || host:80.com || "
        u"a/index.html || bbc.co.uk || example.museum/");
    // They come out as they went in.
    const auto kOthers = rows(
        u" || www. example.org || org || html || kant@example.org || a?index.html || Vol. 3 || Retrieved from || "
        u"10.5 times || St. Louis || database || Retrieved from the attic || Abstract || Abstract: || http:// || "
        u"ED12 || Edwards || Abstract Art || Eric Edam || Retrieved by hand from a well || doi: || <>.");
    Online online = elementWith<Online>(kApa);
    for (const TextView text : kAddresses) {
        EXPECT_EQ(parsed(online, text), u"");
        EXPECT_TRUE(online.isURL()) << shown(text);
        EXPECT_EQ(online.toString(false, false, false), concatenate({u"Retrieved from http://", text}));
    }
    for (const TextView text : kOthers) {
        EXPECT_EQ(parsed(online, text), u"");
        EXPECT_EQ(kindOf(online), u'-') << shown(text);
        EXPECT_EQ(online.toString(false, false, false), text);
    }
}

TEST(Online, MarksAbstractsAndTakesTheHostsWord) {
    Online online = elementWith<Online>(kApa);
    parsed(online, u"Abstract retrieved from http://www.example.org/a");
    // Without a blank, deliberately.
    EXPECT_EQ(online.toString(true, false, false), u"Abstract:http://www.example.org/a");
    EXPECT_EQ(parsed(online, u"the Kant Papers"), u"");
    online.isDatabase = true;
    EXPECT_EQ(online.toString(true, false, false), u"Retrieved from the Kant Papers database");
    EXPECT_EQ(online.toString(false, false, true), u"{\\f0 Retrieved from the Kant Papers database}");
    EXPECT_TRUE(online.SupportsWebsiteAsDatabase() && online.SupportsWebsiteAsEric());
    online.Reset(kResolver);
    EXPECT_TRUE(online.SupportsWebsiteAsDatabase() && !online.SupportsWebsiteAsEric());
}

}  // namespace
}  // namespace quorvel
