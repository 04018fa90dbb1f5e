#pragma once

#include "host/com/automation.h"

#include <cstdint>
#include <memory>

#include "host/callback.h"
#include "host/callback_listener.h"
#include "host/com/held_object.h"
#include "host/forms/sub_form.h"

namespace quorvel::host {

/// What a form is shown for: the arguments of `ShowForm`, borrowed for the length of the call.
struct FormRequest {
    /// An element type code, the notes' or the search form's.
    std::int16_t type;
    TextView productName;
    IDispatch* icon;
    IDispatch* parentForm;
    IDispatch* DefaultOutputTemplate;
    IDispatch* modelOutputTemplate;
    TextView parentText;
    TextView secondaryText;
};

/// A form that the proxy has made, of the library's own or the search component's: its members by name, and what the
/// proxy knows of it. A member that fails throws a RuntimeError; error 91 when the form is gone.
class ShownForm {
public:
    /// @param callback what the form talks to. Each form has one of its own, so that a late word is known for whose
    /// it is.
    ShownForm(std::int16_t type, IDispatch* form, FormTicketRef ticket, ComPtr<Callback> callback);

    void Initialize(const FormRequest& request) const;
    void Show(IDispatch* parentForm) const;
    void ParentWidgetChanged(const FormRequest& request) const;
    void removeKeywordFromSearchBox(TextView keyword) const;
    void Unload() const;
    Text Name() const;
    std::intptr_t hwnd() const;

    /// The form itself, which the host may have replaced; empty when it put Nothing in its place.
    const HeldObjectRef& object() const { return mObject; }
    IDispatch* dispatch() const { return dispatchOf(mObject.get()); }
    /// The form as a call that had it by reference left it. Those of the library's own stay what they are.
    void takeBack(const VARIANT& reference);

    /// Whether it came from the search component.
    bool isForeign() const;
    /// Whether a request can be met by filling this form again; search forms are told apart by their names.
    bool isOfClass(std::int16_t whichType) const;
    /// Whether it said that it is going away.
    bool isCompleted() const { return mTicket->isCompleted; }
    const FormTicketRef& ticket() const { return mTicket; }

    /// Makes a form of the library's own visible; a foreign one saw to that itself.
    void reveal() const;
    /// Null until it is told.
    HWND window = nullptr;
    /// Of its window, in pixels.
    SIZE size() const;

private:
    std::int16_t mType;
    HeldObjectRef mObject;
    // Empty for a foreign form.
    std::shared_ptr<SubForm> mOwn;
    FormTicketRef mTicket;
    ComPtr<Callback> mCallback;
};

/// The window that an object with such a member names; null when it has none.
HWND windowOf(const LateBoundObject& object, const wchar_t* member);

}  // namespace quorvel::host
