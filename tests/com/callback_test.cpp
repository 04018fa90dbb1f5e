#include <ocidl.h>
#include <olectl.h>

#include "recording_service.h"

namespace comtests {
namespace {

/// Listens to the events of `Callback`, by their numbers in the type library.
class Listener final : public DispatchObject {
public:
    explicit Listener(IID source = __uuidof(__Callback)) : mSource(source) {}

    std::function<HRESULT(DISPID event, const std::vector<VARIANT*>& arguments)> onEvent;
    std::wstring heard;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        return DispatchObject::QueryInterface(iid == mSource ? IID_IDispatch : iid, object);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        std::vector<VARIANT*> arguments;
        heard += std::to_wstring(event) + L"(";
        for (UINT i = parameters->cArgs; i-- > 0;) {
            arguments.push_back(&parameters->rgvarg[i]);
            EXPECT_NE(parameters->rgvarg[i].vt & VT_BYREF, 0);
            heard += shown(parameters->rgvarg[i]) + (i > 0 ? L", " : L"");
        }
        heard += L") ";
        return onEvent ? onEvent(event, arguments) : S_OK;
    }

private:
    IID mSource;
};

class CallbackEvents : public ServiceTest {
protected:
    CallbackEvents() {
        ComPointer<IConnectionPointContainer> container;
        EXPECT_EQ(callback.dispatch()->QueryInterface(IID_IConnectionPointContainer, container.putVoid()), S_OK);
        EXPECT_EQ(container->FindConnectionPoint(__uuidof(__Callback), events.put()), S_OK);
    }
    DWORD advise(IUnknown* listener) {
        DWORD cookie = 0;
        EXPECT_EQ(events->Advise(listener, &cookie), S_OK);
        return cookie;
    }

    LateBoundObject callback = library.create(__uuidof(::Callback));
    ComPointer<IConnectionPoint> events;
};

TEST_F(CallbackEvents, EachMemberRaisesItsEventWithVariablesOfTheDeclaredTypes) {
    const auto listener = makeObject<Listener>();
    std::wstring types;
    listener->onEvent = [&](DISPID event, const std::vector<VARIANT*>& arguments) {
        for (const VARIANT* argument : arguments) types += std::to_wstring(argument->vt & ~VT_BYREF) + L" ";
        if (event == 2) *arguments[1]->ppdispVal = Variant(callback.dispatch()).release().pdispVal;
        if (event == 3 || event == 8) *arguments[1]->pbstrVal = SysAllocString(L"answer");
        return S_OK;
    };
    const DWORD cookie = advise(listener.get());
    callback.call(L"Terminate", {1});
    EXPECT_EQ(textOf(callback.call(L"WebsiteAddress", {L"file"})), L"answer");
    EXPECT_EQ(textOf(callback.call(L"getPersistentValue", {L"key"})), L"answer");
    callback.call(L"setPersistentValue", {L"key", L"value"});
    EXPECT_EQ(objectOf(callback.call(L"DefaultOutputTemplate", {6})).get(), callback.dispatch());
    callback.call(L"ReturnFocus");
    callback.call(L"TooltipShow", {L"help"});
    callback.call(L"TooltipHide");
    callback.call(L"setParentWidgetsValue", {L"1990", L"second"});
    EXPECT_EQ(listener->heard, L"1(1) 8(file, ) 3(key, ) 4(key, value) 2(6, Nothing) 9() 6(help) 7() 5(1990, second) ");
    EXPECT_EQ(types, L"2 8 8 8 8 8 8 2 9 8 8 8 ");
    EXPECT_EQ(service.takenErrors(), L"");

    EXPECT_EQ(events->Unadvise(cookie), S_OK);
    EXPECT_EQ(events->Unadvise(cookie), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(textOf(callback.call(L"WebsiteAddress", {L"file"})), L"");
    EXPECT_FALSE(objectOf(callback.call(L"DefaultOutputTemplate", {6})));
    EXPECT_EQ(service.takenErrors(), L"");
    service.taken();
    callback.call(L"DefaultOutputTemplate", {6});
    callback.call(L"TooltipHide");
    EXPECT_EQ(service.taken(), L"> Callback.DefaultOutputTemplate[Get] \n<\n> Callback.TooltipHide ()\n<\n");
}

TEST_F(CallbackEvents, WhatAListenerChangesReachesTheCallersVariable) {
    const auto listener = makeObject<Listener>(IID_NULL);  // Through plain IDispatch.
    listener->onEvent = [](DISPID, const std::vector<VARIANT*>& arguments) {
        SysReAllocString(arguments[0]->pbstrVal, L"changed");
        return S_OK;
    };
    advise(listener.get());
    BSTR text = SysAllocString(L"before");
    callback.call(L"TooltipShow", {Variant::byReference(text)});
    EXPECT_EQ(std::wstring(text), L"changed");
    SysFreeString(text);
}

// Scripting engines take variants alone.
TEST_F(CallbackEvents, AListenerThatRefusesDeclaredTypesGetsVariants) {
    const auto listener = makeObject<Listener>();
    Variant answer(L"answer");
    listener->onEvent = [&](DISPID, const std::vector<VARIANT*>& arguments) {
        for (const VARIANT* argument : arguments) {
            if (argument->vt != (VT_BYREF | VT_VARIANT)) return DISP_E_TYPEMISMATCH;
        }
        if (arguments.size() == 2) *arguments[1]->pvarVal = Variant(answer).release();
        return S_OK;
    };
    advise(listener.get());
    EXPECT_EQ(textOf(callback.call(L"getPersistentValue", {L"key"})), L"answer");
    answer = Variant(callback.dispatch());
    EXPECT_EQ(objectOf(callback.call(L"DefaultOutputTemplate", {6})).get(), callback.dispatch());
    EXPECT_EQ(service.takenErrors(), L"");
    EXPECT_EQ(textOf(callback.call(L"getPersistentValue", {L"key"})), L"");
    answer = Variant();
    EXPECT_EQ(textOf(callback.call(L"getPersistentValue", {L"key"})), L"");
    EXPECT_EQ(service.takenErrors(), L"13 Callback.getPersistentValue");
}

TEST_F(CallbackEvents, EachListenerIsCalledWhateverTheOthersDo) {
    const auto first = makeObject<Listener>();
    const auto second = makeObject<Listener>();
    const auto third = makeObject<Listener>();
    const auto late = makeObject<Listener>();
    const DWORD cookies[] = {advise(first.get()), advise(second.get()), advise(third.get())};
    first->onEvent = [&](DISPID, const std::vector<VARIANT*>&) {
        events->Unadvise(cookies[0]);
        events->Unadvise(cookies[1]);
        advise(late.get());
        return E_FAIL;
    };
    callback.call(L"ReturnFocus");
    // Those that were taken off are not called any more, nor yet those that came.
    EXPECT_EQ(first->heard + L"|" + second->heard + L"|" + third->heard + L"|" + late->heard, L"9() ||9() |");
    EXPECT_EQ(service.takenErrors(), L"440 Callback.ReturnFocus");
    // One that does not know the event is no failure.
    third->onEvent = [](DISPID, const std::vector<VARIANT*>&) { return DISP_E_MEMBERNOTFOUND; };
    callback.call(L"ReturnFocus");
    EXPECT_EQ(third->heard + L"|" + late->heard, L"9() 9() |9() ");
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(CallbackEvents, AListenerMayLetGoOfTheCallback) {
    const auto listener = makeObject<Listener>();
    listener->onEvent = [&](DISPID, const std::vector<VARIANT*>& arguments) {
        callback = LateBoundObject();
        events.reset();
        *arguments[1]->pbstrVal = SysAllocString(L"answer");
        return S_OK;
    };
    advise(listener.get());
    IDispatch* const last = callback.dispatch();
    Variant answer;
    EXPECT_EQ(invoke(last, idOf(last, L"WebsiteAddress"), DISPATCH_METHOD, {Variant(L"file").get()}, &answer.get()),
              S_OK);
    EXPECT_EQ(textOf(answer), L"answer");
    EXPECT_EQ(library.canUnloadNow(), S_OK);
}

TEST_F(CallbackEvents, TheConnectionPointIsAsThePlatformWantsIt) {
    ComPointer<IConnectionPointContainer> container;
    ASSERT_EQ(events->GetConnectionPointContainer(container.put()), S_OK);
    ComPointer<IUnknown> identity;
    ComPointer<IUnknown> same;
    EXPECT_EQ(container->QueryInterface(IID_IUnknown, identity.putVoid()), S_OK);
    EXPECT_EQ(callback.dispatch()->QueryInterface(IID_IUnknown, same.putVoid()), S_OK);
    EXPECT_EQ(identity.get(), same.get());
    IID source = {};
    EXPECT_EQ(events->GetConnectionInterface(&source), S_OK);
    EXPECT_EQ(source, __uuidof(__Callback));
    ComPointer<IConnectionPoint> other;
    EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, other.put()), CONNECT_E_NOCONNECTION);

    ComPointer<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(points.put()), S_OK);
    ULONG fetched = 0;
    IConnectionPoint* found[2] = {};
    EXPECT_EQ(points->Next(2, found, &fetched), S_FALSE);
    EXPECT_EQ(fetched, 1U);
    EXPECT_EQ(ComPointer<IConnectionPoint>::owning(found[0]).get(), events.get());

    const auto listener = makeObject<Listener>();
    const DWORD cookies[] = {advise(listener.get()), advise(listener.get()), advise(listener.get())};
    ComPointer<IEnumConnections> connections;
    ComPointer<IEnumConnections> copy;
    ASSERT_EQ(events->EnumConnections(connections.put()), S_OK);
    EXPECT_EQ(connections->Skip(1), S_OK);
    ASSERT_EQ(connections->Clone(copy.put()), S_OK);
    CONNECTDATA data = {};
    EXPECT_EQ(copy->Next(1, &data, nullptr), S_OK);
    EXPECT_EQ(data.dwCookie, cookies[1]);
    data.pUnk->Release();
    EXPECT_EQ(copy->Skip(2), S_FALSE);
    EXPECT_EQ(copy->Reset(), S_OK);
    EXPECT_EQ(copy->Next(1, &data, nullptr), S_OK);
    EXPECT_EQ(data.dwCookie, cookies[0]);
    data.pUnk->Release();

    DWORD cookie = 1;
    ComPointer<IBindCtx> foreign;
    CreateBindCtx(0, foreign.put());
    EXPECT_EQ(events->Advise(foreign.get(), &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(cookie, 0U);
    EXPECT_EQ(events->Advise(nullptr, &cookie), E_POINTER);

    ComPointer<IProvideClassInfo2> provider;
    ComPointer<IProvideClassInfo> older;
    ASSERT_EQ(callback.dispatch()->QueryInterface(IID_IProvideClassInfo2, provider.putVoid()), S_OK);
    EXPECT_EQ(callback.dispatch()->QueryInterface(IID_IProvideClassInfo, older.putVoid()), S_OK);
    GUID id = {};
    EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &id), S_OK);
    EXPECT_EQ(id, __uuidof(__Callback));
    ComPointer<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(provider->GetClassInfo(info.put()), S_OK);
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, __uuidof(::Callback));
    info->ReleaseTypeAttr(attributes);
}

}  // namespace
}  // namespace comtests
