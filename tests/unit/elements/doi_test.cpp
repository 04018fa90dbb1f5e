#include "elements/doi.h"

#include <gtest/gtest.h>

#include "support/shown.h"

namespace quorvel {
namespace {

TEST(Doi, IsReadInEverySpelling) {
    struct Case {
        TextView text;
        // Empty for a text that is none.
        TextView bare;
    };
    const Case kCases[] = {
        {u"doi:10.1000/182", u"10.1000/182"},
        {u"DOI: 10.1000/182", u"10.1000/182"},
        {u"doi 10.1000/182", u"10.1000/182"},
        {u"http://dx.doi.org/10.1000/182", u"10.1000/182"},
        {u"https://dx.doi.org/10.1000/182", u"10.1000/182"},
        {u"http://doi.org/10.1000/182", u"10.1000/182"},
        {u"HTTPS://DOI.org/10.1000/ABC", u"10.1000/ABC"},
        {u"dx.doi.org/10.1000/182", u"10.1000/182"},
        {u"10.1000/182", u"10.1000/182"},
        {u"10.1000.10/a(b)c", u"10.1000.10/a(b)c"},
        {u"10.1000/", u""},
        {u"10./182", u""},
        {u"10.5 million", u""},
        {u"doi:", u""},
        {u"https://doi.org/", u""},
        {u"http://example.org/10.1000/182", u""},
        {u"doigt", u""},
        {u"", u""},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(doi::isDoi(c.text), !c.bare.empty()) << shown(c.text);
        EXPECT_EQ(doi::withoutAnnouncement(c.text), c.bare.empty() ? c.text : c.bare);
    }
}

}  // namespace
}  // namespace quorvel
