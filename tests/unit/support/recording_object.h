#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/run_time_error.h"
#include "forms/late_object.h"
#include "support/utf8.h"

namespace quorvel {

/// An element, model, callback or picture of a test: members by name with their values, and what was asked of them in
/// the order of asking. Members with indexes have a value for each: "Supports(1)".
class RecordingObject final : public forms::LateObject {
public:
    using Function = std::function<forms::Value(Arguments)>;

    /// A property, which may be written.
    void has(const char16_t* member, forms::Value value) { mValues[member] = std::move(value); }
    /// A method.
    void does(const char16_t* member, Function function) { mFunctions[member] = std::move(function); }
    /// A property whose writing does something else.
    void takes(const char16_t* member, Function function) { mSetters[member] = std::move(function); }
    /// What a method leaves in its first argument.
    void leaves(const char16_t* member, Text rest) { mRests[member] = std::move(rest); }
    /// The call with this number, from 1, fails; 0 for none.
    void failAt(int call) { mFailingCall = call; }
    int failing() const { return mFailingCall; }

    forms::Value valueOf(const Text& member) const {
        const auto found = mValues.find(member);
        return found != mValues.end() ? found->second : forms::Value();
    }
    /// "Parse(1990)", "Year=1990".
    mutable std::vector<std::string> calls;
    mutable int count = 0;

    forms::Value get(const char16_t* member) const override { return answer(member, {}); }
    forms::Value call(const char16_t* member, Arguments arguments) const override { return answer(member, arguments); }
    forms::Value callInOut(const char16_t* member, std::span<forms::Value> arguments) const override {
        forms::Value result = answer(member, arguments);
        if (const auto rest = mRests.find(member); rest != mRests.end()) {
            arguments.front() = forms::Value(rest->second);
        }
        return result;
    }
    void put(const char16_t* member, Arguments indexesAndValue) const override {
        const Text name = key(member, indexesAndValue.first(indexesAndValue.size() - 1));
        record(name + u"=" + written(indexesAndValue.back()));
        if (const auto setter = mSetters.find(member); setter != mSetters.end()) {
            setter->second(indexesAndValue);
            return;
        }
        if (!mValues.contains(name)) {
            throw RuntimeError(ErrorNumber::NoSuchMember);
        }
        mValues[name] = indexesAndValue.back();
    }

private:
    static Text written(const forms::Value& value) {
        if (value.asObject()) {
            return u"object";
        }
        return join(value.asTexts(), u"; ");
    }
    static Text key(const char16_t* member, Arguments arguments) {
        Text name = member;
        for (const forms::Value& argument : arguments) {
            name += (&argument == arguments.data() ? u"(" : u", ") + written(argument);
        }
        return arguments.empty() ? name : name + u")";
    }
    void record(const Text& what) const {
        calls.push_back(test::utf8Of(what));
        if (++count == mFailingCall) {
            throw RuntimeError(ErrorNumber::AutomationError);
        }
    }
    forms::Value answer(const char16_t* member, Arguments arguments) const {
        const Text name = key(member, arguments);
        record(name);
        if (const auto function = mFunctions.find(member); function != mFunctions.end()) {
            return function->second(arguments);
        }
        const auto found = mValues.find(name);
        if (found == mValues.end()) {
            throw RuntimeError(ErrorNumber::NoSuchMember);
        }
        return found->second;
    }

    mutable std::map<Text, forms::Value> mValues;
    std::map<Text, Function> mFunctions;
    std::map<Text, Function> mSetters;
    std::map<Text, Text> mRests;
    int mFailingCall = 0;
};

}  // namespace quorvel
