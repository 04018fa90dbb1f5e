#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "library.h"

/// A host with windows: what it takes to show forms.
namespace comtests {

/// A window of this program, with a place and no content.
class Window {
public:
    explicit Window(bool isVisible = false);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() { destroy(); }

    HWND handle() const { return mHandle; }
    void moveTo(int left, int top) const;
    void destroy();

private:
    HWND mHandle;
};

/// Carries out all messages that wait.
void pumpMessages();

/// The host's objects. Every call that they get is written down as "object.member(argument, ...)", may be made to
/// fail, and may do something before it is answered.
class FormStage {
public:
    FormStage();
    FormStage(const FormStage&) = delete;
    FormStage& operator=(const FormStage&) = delete;
    ~FormStage();

    /// A further object with these members; each answers what `answers` holds for "object.member".
    ComPointer<DispatchObject> object(const std::wstring& name, const std::vector<std::wstring>& members);
    /// A form with a window of its own: `Unload` closes it as a user does, with a word to its `Callback`.
    ComPointer<DispatchObject> form(const std::wstring& name);

    using Action = std::function<void(const Arguments& arguments, VARIANT& result)>;
    /// What happens in the middle of a call, by "object.member".
    std::map<std::wstring, Action> on;
    std::map<std::wstring, Variant> answers;
    /// Which call fails, counted from 1; 0: none does.
    std::size_t failAt = 0;
    std::size_t calls = 0;

    /// The calls since the last time, one a line.
    std::wstring taken();

    /// "host": the object that answers the forms' requests.
    ComPointer<DispatchObject> callback;
    /// "parent": the form beside which forms are shown, with its window.
    ComPointer<DispatchObject> parent;
    Window parentWindow;
    /// "search": the component `QuorvelHunt.Main2`, there for whoever creates it as long as the stage lives.
    ComPointer<DispatchObject> search;
    /// The form that the component gives away as its search form; null for none.
    ComPointer<DispatchObject> searchForm;
    /// The windows of the forms, and what they got by `Initialize`.
    std::map<IDispatch*, std::unique_ptr<Window>> windows;
    std::map<IDispatch*, LateBoundObject> callbacks;

private:
    void add(DispatchObject* object, const std::wstring& name, const std::wstring& member, Action action);

    std::vector<std::wstring> mCalls;
    DWORD mClassObject = 0;
};

/// The component's class name in the registry, while it lives.
class SearchComponentName {
public:
    static constexpr CLSID kClass = {0x5f6d7f8b, 0x41a8, 0x4b0e, {0x8a, 0x52, 0x1b, 0x9e, 0x4c, 0x7d, 0x33, 0x90}};
    SearchComponentName();
    SearchComponentName(const SearchComponentName&) = delete;
    SearchComponentName& operator=(const SearchComponentName&) = delete;
    ~SearchComponentName();
};

}  // namespace comtests
