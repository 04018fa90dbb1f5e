#include "forms/surroundings.h"

namespace quorvel::forms {

namespace {

constexpr TextView kJoints = u" ,.;:";
constexpr TextView kOf = u" of";

/// Where the joint begins that ends a text.
std::size_t beginOfJoint(TextView text) {
    const auto beforeSigns = [](TextView whole) {
        const std::size_t last = whole.find_last_not_of(kJoints);
        return last != TextView::npos ? last + 1 : 0;
    };
    std::size_t begin = beforeSigns(text);
    if (endsWith(text.substr(0, begin), kOf)) {
        begin = beforeSigns(text.substr(0, begin - kOf.size()));
    }
    return begin;
}

}  // namespace

Text Surroundings::around(TextView statement) const {
    if (statement.empty()) {
        Text whole(trim(concatenate({before, behind}), kJoints));
        removePrefix(whole, u"of ");
        return whole;
    }
    const bool hasStop = endsWith(statement, u".") && startsWith(behind, u".");
    return concatenate({before, statement, TextView(behind).substr(hasStop ? 1 : 0)});
}

Surroundings surroundingsOf(TextView text, TextView left) {
    const TextView rest = trim(left, kJoints);
    const bool isStatement = rest.empty() || rest == trim(text, kJoints);
    if (isStatement) {
        return {};
    }
    const std::size_t at = text.find(rest);
    if (at == TextView::npos) {
        return {{}, concatenate({u" ", rest})};
    }
    const std::size_t end = at + rest.size();
    if (trim(text.substr(0, at), kJoints).empty()) {
        const std::size_t joint = text.find_first_not_of(kJoints, end);
        return {Text(text.substr(0, joint)), {}};
    }
    const std::size_t begin = beginOfJoint(text.substr(0, at));
    return {{}, Text(text.substr(begin, end - begin))};
}

}  // namespace quorvel::forms
