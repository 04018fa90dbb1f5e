#include "form_stage.h"

namespace comtests {

namespace {

constexpr wchar_t kWindowClass[] = L"FormStageWindow";
constexpr wchar_t kNameKey[] = L"Software\\Classes\\QuorvelHunt.Main2";

Variant handleOf(const Window& window) {
    Variant handle;
    handle.get().vt = kPointerSized;
    handle.get().llVal = reinterpret_cast<std::intptr_t>(window.handle());
    return handle;
}

/// Gives the one object away that it was made with.
class ObjectFactory final : public IClassFactory {
public:
    explicit ObjectFactory(IDispatch* object) : mObject(object) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool isOurs = iid == IID_IUnknown || iid == IID_IClassFactory;
        *object = isOurs ? this : nullptr;
        if (isOurs) AddRef();
        return isOurs ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++mReferences; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --mReferences;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
        return mObject->QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    ~ObjectFactory() = default;

    ComPointer<IDispatch> mObject;
    ULONG mReferences = 1;
};

}  // namespace

Window::Window(bool isVisible) {
    WNDCLASSW description = {};
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = kWindowClass;
    RegisterClassW(&description);  // Once is enough.
    mHandle = CreateWindowW(kWindowClass, L"", WS_OVERLAPPEDWINDOW, 100, 100, 300, 200, nullptr, nullptr,
                            description.hInstance, nullptr);
    EXPECT_NE(mHandle, nullptr);
    if (isVisible) ShowWindow(mHandle, SW_SHOWNA);
}

void Window::moveTo(int left, int top) const {
    SetWindowPos(mHandle, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::destroy() {
    if (const HWND handle = std::exchange(mHandle, nullptr)) DestroyWindow(handle);
}

void pumpMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

FormStage::FormStage() {
    callback =
        object(L"host", {L"ProcessSubformWorkCompleted", L"HideFormPostProcessing", L"SetFormPosition",
                         L"WebsiteAddress", L"getPersistentValue", L"setPersistentValue", L"DefaultOutputTemplate",
                         L"setParentWidgetsValue", L"ReturnFocus", L"TooltipShow", L"TooltipHide"});
    parent = object(L"parent", {L"hWnd"});
    answers[L"parent.hWnd"] = handleOf(parentWindow);
    search =
        object(L"search", {L"Initialize", L"ShowForm", L"HideForm", L"EnforceMinimumFormSize", L"SearchController"});
    add(search.get(), L"search", L"getSearchForm",
        [this](const Arguments&, VARIANT& result) { result = Variant(searchForm.get()).release(); });
    const auto factory = ComPointer<IClassFactory>::owning(new ObjectFactory(search.get()));
    EXPECT_EQ(CoRegisterClassObject(SearchComponentName::kClass, factory.get(), CLSCTX_INPROC_SERVER,
                                    REGCLS_MULTIPLEUSE, &mClassObject),
              S_OK);
}

FormStage::~FormStage() {
    CoRevokeClassObject(mClassObject);
}

ComPointer<DispatchObject> FormStage::object(const std::wstring& name, const std::vector<std::wstring>& members) {
    const auto result = makeObject<DispatchObject>();
    for (const std::wstring& member : members) add(result.get(), name, member, nullptr);
    return result;
}

ComPointer<DispatchObject> FormStage::form(const std::wstring& name) {
    const auto result =
        object(name, {L"ParentWidgetChanged", L"Show", L"Name", L"hwnd", L"removeKeywordFromSearchBox"});
    DispatchObject* const self = result.get();
    windows[self] = std::make_unique<Window>();
    answers[name + L".Name"] = Variant(name);
    answers[name + L".hwnd"] = handleOf(*windows[self]);
    add(self, name, L"Initialize",
        [this, self](const Arguments& arguments, VARIANT&) { callbacks[self] = LateBoundObject(arguments.object(0)); });
    add(self, name, L"Unload", [this, self](const Arguments&, VARIANT&) {
        const LateBoundObject leaving = std::exchange(callbacks[self], LateBoundObject());
        if (leaving) leaving.call(L"Terminate", {1});
        windows[self]->destroy();
    });
    return result;
}

void FormStage::add(DispatchObject* object, const std::wstring& name, const std::wstring& member, Action action) {
    const std::wstring call = name + L"." + member;
    object->addMethod(member, [this, call, action](const Arguments& arguments, VARIANT& result) -> HRESULT {
        std::vector<std::wstring> values;
        for (std::size_t i = 0; i < arguments.size(); ++i) values.push_back(shown(arguments[i]));
        mCalls.push_back(call + L"(" + joined(values, L", ") + L")");
        const bool fails = ++calls == failAt;
        if (on.contains(call)) {
            // It may take itself away.
            const Action special = on[call];
            special(arguments, result);
        }
        if (fails) return E_FAIL;
        if (action) action(arguments, result);
        if (answers.contains(call)) result = Variant(answers[call]).release();
        return S_OK;
    });
}

std::wstring FormStage::taken() {
    const std::wstring text = joined(mCalls, L"\n");
    mCalls.clear();
    return text;
}

SearchComponentName::SearchComponentName() {
    wchar_t text[40];
    const int length = StringFromGUID2(kClass, text, 40);
    EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, (std::wstring(kNameKey) + L"\\CLSID").c_str(), nullptr, REG_SZ, text,
                              static_cast<DWORD>(length) * sizeof(wchar_t)),
              ERROR_SUCCESS);
}

SearchComponentName::~SearchComponentName() {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, kNameKey);
}

}  // namespace comtests
