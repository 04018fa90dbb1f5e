#include "forms/late_object.h"

#include <charconv>

#include "core/letter_case.h"
#include "core/run_time_error.h"

namespace quorvel::forms {

namespace {

constexpr TextView kTrue = u"True";
constexpr TextView kFalse = u"False";

[[noreturn]] void mismatch() {
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

std::int32_t numberOf(TextView text) {
    const TextView trimmed = trim(text);
    const std::string digits(trimmed.begin(), trimmed.end());
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::result_out_of_range) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    if (error != std::errc() || end != digits.data() + digits.size()) {
        mismatch();
    }
    return number;
}

Text textOf(std::int32_t number) {
    const std::string digits = std::to_string(number);
    return Text(digits.begin(), digits.end());
}

/// A way of reading each kind of value; those that no member names do not convert.
template <class Result>
struct Reading {
    [[noreturn]] Result operator()(const std::vector<Text>& /*value*/) const { mismatch(); }
    [[noreturn]] Result operator()(const LateObjectRef& /*value*/) const { mismatch(); }
};

struct AsFlag : Reading<bool> {
    using Reading::operator();
    bool operator()(std::monostate /*value*/) const { return false; }
    bool operator()(bool value) const { return value; }
    bool operator()(std::int32_t value) const { return value != 0; }
    bool operator()(const Text& value) const {
        if (equalsIgnoringCase(value, kTrue) || equalsIgnoringCase(value, kFalse)) {
            return equalsIgnoringCase(value, kTrue);
        }
        return numberOf(value) != 0;
    }
};

struct AsNumber : Reading<std::int32_t> {
    using Reading::operator();
    std::int32_t operator()(std::monostate /*value*/) const { return 0; }
    std::int32_t operator()(bool value) const { return value ? -1 : 0; }
    std::int32_t operator()(std::int32_t value) const { return value; }
    std::int32_t operator()(const Text& value) const { return numberOf(value); }
};

struct AsText : Reading<Text> {
    using Reading::operator();
    Text operator()(std::monostate /*value*/) const { return {}; }
    Text operator()(bool value) const { return Text(value ? kTrue : kFalse); }
    Text operator()(std::int32_t value) const { return textOf(value); }
    Text operator()(const Text& value) const { return value; }
};

}  // namespace

bool Value::asFlag() const {
    return std::visit(AsFlag(), mStorage);
}

std::int32_t Value::asNumber() const {
    return std::visit(AsNumber(), mStorage);
}

Text Value::asText() const {
    return std::visit(AsText(), mStorage);
}

std::vector<Text> Value::asTexts() const {
    if (const auto* texts = std::get_if<std::vector<Text>>(&mStorage)) {
        return *texts;
    }
    return std::holds_alternative<std::monostate>(mStorage) ? std::vector<Text>() : std::vector<Text>{asText()};
}

LateObjectRef Value::asObject() const {
    const auto* reference = std::get_if<LateObjectRef>(&mStorage);
    return reference != nullptr ? *reference : nullptr;
}

}  // namespace quorvel::forms
