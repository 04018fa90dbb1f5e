#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"

/// A form with every kind of control, and the objects round it, for tests of the windows.
namespace quorvel::forms::test {

/// An element or a callback that writes down what is called, and does what a test wants then.
class TrialObject final : public LateObject {
public:
    Value get(const char16_t* member) const override;
    Value call(const char16_t* member, Arguments arguments) const override;
    void put(const char16_t* member, Arguments indexesAndValue) const override;

    int count(TextView member) const;

    mutable std::vector<Text> calls;
    std::map<Text, std::function<void()>> whenCalled;
    /// By the member's name; without one the answer is the empty value.
    std::map<Text, Value> answers;
};

class TrialForm final : public Form {
public:
    TrialForm();
    ~TrialForm() override { --alive; }

    TextView className() const override { return u"TrialForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

    /// What the user did, in words: "changed Name", "entered Name", "left Name", "clicked One", "up Count".
    std::vector<std::string> events;
    bool has(const std::string& event) const;
    /// What happens behind an event.
    std::function<void(const std::string& event)> onEvent;

    static int alive;

protected:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool /*isModelPreview*/) override {}
    void boxChanged(Control& box) override { note("changed", box); }
    void boxEntered(Control& box) override { note("entered", box); }
    void boxLeft(Control& box) override { note("left", box); }
    void choiceClicked(Control& control) override { note("clicked", control); }
    void buttonClicked(Control& button) override;
    void spun(Control& /*upDown*/, Control& buddy, bool isUp) override { note(isUp ? "up" : "down", buddy); }
    void textSelected(Control& box, SelectedBy /*by*/) override { note("selected", box); }
    void activated() override;

private:
    void note(const char* what, const Control& control);
};

}  // namespace quorvel::forms::test
