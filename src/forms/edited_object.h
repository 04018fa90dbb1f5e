#pragma once

#include <initializer_list>
#include <optional>

#include "core/instrumented.h"
#include "forms/late_object.h"

namespace quorvel::forms {

/// The element that a form edits, or the model that it asks, whatever object it is: what fails is reported under the
/// form's name and counts as the empty value, so that a form goes on with the rest.
class EditedObject {
public:
    /// @param form which reports; it must outlive this object
    explicit EditedObject(const Instrumented& form) : mForm(form) {}

    void hold(LateObjectRef object);
    const LateObjectRef& object() const { return mObject; }

    Value get(const char16_t* member) const;
    Value call(const char16_t* member, LateObject::Arguments arguments) const;
    Value call(const char16_t* member, std::initializer_list<Value> arguments) const {
        return call(member, LateObject::Arguments(arguments.begin(), arguments.size()));
    }
    /// Calls a method that takes a text by reference, and a second one. @return what it left of the first
    Text callWithRest(const char16_t* member, TextView text, const std::optional<Text>& second = std::nullopt) const;
    void put(const char16_t* member, std::initializer_list<Value> indexesAndValue) const;
    template <class T>
    void put(const char16_t* member, const T& value) const {
        put(member, {Value(value)});
    }

    bool flag(const char16_t* member) const;
    bool flag(const char16_t* member, std::int32_t index) const;
    std::int32_t number(const char16_t* member) const;
    Text text(const char16_t* member) const;
    Text text(const char16_t* member, std::int32_t index) const;
    std::vector<Text> texts(const char16_t* member) const;

    /// The answer of an object that may not have the member, which is then no error: nothing. Other failures are
    /// reported and give nothing as well.
    std::optional<Value> ifAny(const char16_t* member, std::initializer_list<Value> arguments = {}) const;

private:
    const Instrumented& mForm;
    LateObjectRef mObject;
};

}  // namespace quorvel::forms
