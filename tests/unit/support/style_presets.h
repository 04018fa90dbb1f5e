#pragma once

#include <array>

#include "elements/author/style.h"
#include "support/style_file.h"
#include "support/utf8.h"

/// The author settings of the four styles.
namespace quorvel::test {

struct AuthorPreset {
    Text name;
    AuthorOptions options;
};

inline AuthorOptions authorOptions(std::string_view style) {
    return StyleFile::of(style).options("author", kAuthorOptions);
}
inline AuthorOptions mlaAuthorOptions() {
    return authorOptions("mla");
}
inline AuthorOptions apaAuthorOptions() {
    return authorOptions("apa");
}
inline AuthorOptions turabianAuthorOptions() {
    return authorOptions("turabian");
}
inline AuthorOptions amaAuthorOptions() {
    return authorOptions("ama");
}

inline std::array<AuthorPreset, 4> authorPresets() {
    return {{{u"MLA", mlaAuthorOptions()},
             {u"APA", apaAuthorOptions()},
             {u"Turabian", turabianAuthorOptions()},
             {u"AMA", amaAuthorOptions()}}};
}

}  // namespace quorvel::test
