#pragma once

#include "core/text.h"

/// DOIs as texts hold them, in any letter case:
///
///   doi:10.1000/182      DOI: 10.1000/182      doi 10.1000/182      announced
///   http://dx.doi.org/10.1000/182              https://doi.org/10.1000/182
///                                              as the address of the resolver, the older and the current one,
///                                              also without scheme
///   10.1000/182                                on its own
namespace quorvel::doi {

/// True for a DOI, on its own or with what announces it. What is announced is believed: only a DOI on its own has to
/// look like one.
bool isDoi(TextView text);

/// True when something announces a DOI and something follows.
bool isAnnounced(TextView text);

/// True for a DOI on its own: "10.", the number of its registrant, "/" and something behind.
bool isBare(TextView text);

/// The DOI without what announces it and the blanks behind that; a text without such is returned as it is.
TextView withoutAnnouncement(TextView text);

}  // namespace quorvel::doi
