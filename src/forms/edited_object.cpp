#include "forms/edited_object.h"

#include "core/procedure.h"

namespace quorvel::forms {

namespace {

// The property of the callback under whose name forms and hosts know the element.
constexpr TextView kReportedAs = u"DefaultOutputTemplate";

constexpr auto kNoSuchMember = static_cast<std::int32_t>(ErrorNumber::NoSuchMember);

/// What a call gives, or, when it fails and is reported, the empty value.
template <class Call>
auto orEmpty(const Instrumented& form, Call&& call) -> decltype(call()) {
    try {
        return call();
    } catch (...) {
        reportCurrentException(form, kReportedAs);
    }
    return decltype(call())();
}

LateObject::Arguments spanOf(std::initializer_list<Value> values) {
    return {values.begin(), values.size()};
}

}  // namespace

void EditedObject::hold(LateObjectRef object) {
    // The old object goes when the new one is in place: its end may call the form.
    mObject.swap(object);
}

Value EditedObject::get(const char16_t* member) const {
    return orEmpty(mForm, [&] { return held(mObject)->get(member); });
}

Value EditedObject::call(const char16_t* member, LateObject::Arguments arguments) const {
    return orEmpty(mForm, [&] { return held(mObject)->call(member, arguments); });
}

Text EditedObject::callWithRest(const char16_t* member, TextView text, const std::optional<Text>& second) const {
    return orEmpty(mForm, [&] {
        std::vector<Value> arguments = {Value(text)};
        if (second) {
            arguments.emplace_back(*second);
        }
        held(mObject)->callInOut(member, arguments);
        return arguments.front().asText();
    });
}

void EditedObject::put(const char16_t* member, std::initializer_list<Value> indexesAndValue) const {
    orEmpty(mForm, [&] { held(mObject)->put(member, spanOf(indexesAndValue)); });
}

bool EditedObject::flag(const char16_t* member) const {
    return orEmpty(mForm, [&] { return held(mObject)->get(member).asFlag(); });
}

bool EditedObject::flag(const char16_t* member, std::int32_t index) const {
    return orEmpty(mForm, [&] { return held(mObject)->call(member, spanOf({Value(index)})).asFlag(); });
}

std::int32_t EditedObject::number(const char16_t* member) const {
    return orEmpty(mForm, [&] { return held(mObject)->get(member).asNumber(); });
}

Text EditedObject::text(const char16_t* member) const {
    return orEmpty(mForm, [&] { return held(mObject)->get(member).asText(); });
}

Text EditedObject::text(const char16_t* member, std::int32_t index) const {
    return orEmpty(mForm, [&] { return held(mObject)->call(member, spanOf({Value(index)})).asText(); });
}

std::vector<Text> EditedObject::texts(const char16_t* member) const {
    return orEmpty(mForm, [&] { return held(mObject)->get(member).asTexts(); });
}

std::optional<Value> EditedObject::ifAny(const char16_t* member, std::initializer_list<Value> arguments) const {
    if (!mObject) {
        return std::nullopt;
    }
    return orEmpty(mForm, [&]() -> std::optional<Value> {
        const LateObjectRef object = mObject;
        try {
            return arguments.size() == 0 ? object->get(member) : object->call(member, spanOf(arguments));
        } catch (const RuntimeError& error) {
            if (error.number() != kNoSuchMember) {
                throw;
            }
        }
        return std::nullopt;
    });
}

}  // namespace quorvel::forms
