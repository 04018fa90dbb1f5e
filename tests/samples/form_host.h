#pragma once

#include <functional>
#include <string>
#include <vector>

#include "com/dispatch_object.h"
#include "com/late_bound.h"

namespace sample {

/// A text of a field, and the second text that goes with it.
struct FormText {
    std::wstring text;
    std::wstring secondary;
};

/// A host that shows the library's forms through one proxy and does what a user does who looks at a text and closes the
/// form. The forms have no owner.
class FormHost {
public:
    /// @param main a QuorvelTemplate.Main2
    explicit FormHost(const LateBoundObject& main);
    FormHost(const FormHost&) = delete;
    FormHost& operator=(const FormHost&) = delete;
    ~FormHost();

    /// Shows a form with one text after the other and clicks OK each time. As a host does that goes to the next
    /// reference, it shows the next text when it is given one, so that the form stays open until the last.
    /// @return what the form gave for each text
    std::vector<FormText> accept(std::int16_t type, const LateBoundObject& element, std::vector<FormText> texts);
    /// Shows a form with a text, changes something in it and clicks OK.
    FormText change(std::int16_t type, const LateBoundObject& element, const FormText& text,
                    const std::function<void(const LateBoundObject& form)>& user);
    /// Shows a form with a text and clicks Cancel. @return how often the form gave a text all the same
    std::size_t cancel(std::int16_t type, const LateBoundObject& element, const FormText& text);

private:
    void begin(std::int16_t type, const LateBoundObject& element, std::vector<FormText> texts);
    void show(const FormText& text);
    void click(const std::wstring& button);

    ComPointer<DispatchObject> mCallback;
    LateBoundObject mProxy;
    std::int16_t mType = 0;
    LateBoundObject mElement;
    std::vector<FormText> mTexts;
    std::vector<FormText> mGiven;
    /// The form that is open.
    LateBoundObject mForm;
};

}  // namespace sample
