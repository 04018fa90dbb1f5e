#pragma once

#include <cstddef>

#include "core/text.h"

/// The months of the year as references name them. The names are English whatever the machine speaks.
namespace quorvel {

struct Month {
    TextView name;
    /// As MLA abbreviates it (7.2).
    TextView mla;
    /// The abbreviations that are read, in small letters and with blanks between. The single letters, and "ju" for
    /// July rather than June, are on purpose.
    TextView abbreviations;

    /// Its first letters, which are the short form of dates ("mmm").
    constexpr TextView shortName() const {
        constexpr std::size_t kLength = 3;
        return name.substr(0, kLength);
    }
};

inline constexpr Month kMonths[] = {
    {u"January", u"Jan.", u"ja jan"},
    {u"February", u"Feb.", u"fe feb"},
    {u"March", u"Mar.", u"ma mar"},
    {u"April", u"Apr.", u"a ap apr"},
    {u"May", u"May", u"m"},
    {u"June", u"June", u"j jn jun"},
    {u"July", u"July", u"jl ju jul"},
    {u"August", u"Aug.", u"au aug"},
    {u"September", u"Sept.", u"se sep sept"},
    {u"October", u"Oct.", u"o oc oct"},
    {u"November", u"Nov.", u"n no nov"},
    {u"December", u"Dec.", u"d de dec"},
};

}  // namespace quorvel
