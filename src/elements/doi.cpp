#include "elements/doi.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"

namespace quorvel::doi {

namespace {

constexpr TextView kAnnouncements[] = {
    u"doi:",     u"doi ",       u"https://doi.org/", u"http://doi.org/", u"http://dx.doi.org/", u"https://dx.doi.org/",
    u"doi.org/", u"dx.doi.org/"};
constexpr TextView kDirectory = u"10.";
constexpr TextView kSignsOfRegistrant = u"0123456789.";

/// The announcement at the front of the text, empty when there is none.
TextView announcementOf(TextView text) {
    const auto* const found =
        std::find_if(std::begin(kAnnouncements), std::end(kAnnouncements), [&](TextView announcement) {
            return text.size() > announcement.size() && startsWithIgnoringCase(text, announcement);
        });
    return found == std::end(kAnnouncements) ? TextView() : *found;
}

}  // namespace

bool isDoi(TextView text) {
    return isAnnounced(text) || isBare(text);
}

bool isAnnounced(TextView text) {
    return !announcementOf(text).empty();
}

bool isBare(TextView text) {
    if (!startsWith(text, kDirectory)) {
        return false;
    }
    const std::size_t slash = text.find_first_not_of(kSignsOfRegistrant, kDirectory.size());
    return slash != TextView::npos && slash > kDirectory.size() && text[slash] == u'/' && slash + 1 < text.size();
}

TextView withoutAnnouncement(TextView text) {
    const TextView announcement = announcementOf(text);
    return announcement.empty() ? text : trim(text.substr(announcement.size()));
}

}  // namespace quorvel::doi
