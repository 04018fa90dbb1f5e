#pragma once

#include <deque>
#include <functional>
#include <span>
#include <string>
#include <utility>

#include "com/variant.h"

/// The base of all objects that the host offers: it answers late-bound calls from a table of members.
namespace sample {

/// The arguments of one call, in their natural order; for a property that is set, the new value is
/// the last one.
class Arguments {
public:
    explicit Arguments(std::span<VARIANT* const> arguments) : mArguments(arguments) {}

    std::size_t size() const { return mArguments.size(); }
    /// The argument as it was passed, by reference or not.
    /// @throws ComError DISP_E_BADPARAMCOUNT when the caller passed fewer
    VARIANT& operator[](std::size_t index) const;
    /// Whether the caller passed this one and did not leave it out.
    bool has(std::size_t index) const { return index < size() && !isMissing(*mArguments[index]); }

    std::wstring text(std::size_t index) const { return textOf((*this)[index]); }
    std::int32_t number(std::size_t index) const { return numberOf((*this)[index]); }
    bool boolean(std::size_t index) const { return booleanOf((*this)[index]); }
    ComPointer<IDispatch> object(std::size_t index) const { return objectOf((*this)[index]); }

private:
    std::span<VARIANT* const> mArguments;
};

/// An object with members by name. Names are found whatever their letter case, as in Visual Basic.
/// It lives in the apartment that made it and is counted from 1; make it with `makeObject`.
///
///     ComPointer<DispatchObject> model = makeObject<DispatchObject>();
///     model->addMethod(L"value", [](const Arguments& arguments, VARIANT& result) {
///         result = Variant(arguments.number(0) == 7).release();
///         return S_OK;
///     });
class DispatchObject : public IDispatch {
public:
    /// Carries a member out. The result is empty at first and belongs to the caller afterwards.
    /// A ComError that leaves the function becomes the call's failure, any other exception E_FAIL.
    using Function = std::function<HRESULT(const Arguments& arguments, VARIANT& result)>;

    DispatchObject() { ++sLiveObjects; }
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

    /// A member that is called, or read as a property, with or without arguments.
    void addMethod(std::wstring name, Function function);
    /// A member that is set.
    void addSetter(std::wstring name, Function function);

    /// The object behind an interface pointer when it is one of this program's, else null. It may be
    /// asked about any object: no foreign memory is looked at.
    static DispatchObject* behind(IUnknown* object);

    /// How many of these objects exist; 0 when the program has cleaned up.
    static long liveObjects() { return sLiveObjects; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++mReferences; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kinds, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT* badArgument) override;

protected:
    virtual ~DispatchObject() { --sLiveObjects; }

private:
    struct Member {
        std::wstring name;
        Function get;
        Function set;
    };
    Member& member(std::wstring name);

    static long sLiveObjects;
    ULONG mReferences = 1;
    // A deque, so that a member may add members while it runs.
    std::deque<Member> mMembers;
};

template <class Object, class... Values>
ComPointer<Object> makeObject(Values&&... values) {
    return ComPointer<Object>::owning(new Object(std::forward<Values>(values)...));
}

}  // namespace sample
