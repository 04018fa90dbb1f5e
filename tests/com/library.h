#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "com/bridge_to_vb.h"
#include "com/late_bound.h"
#include "text/formatted_text.h"
// Generated from the interface description.
#include <QuorvelTemplate.h>

/// What the tests of the component server share: they are hosts, and know of the library what any host
/// knows.
namespace comtests {

using namespace sample;

/// Element type codes that tests name.
constexpr std::int32_t kYear = 6;
constexpr std::int32_t kPlace = 15;
constexpr std::int32_t kDateTime = 17;

/// The type of a window handle or a message's parameter: as wide as a pointer.
constexpr VARTYPE kPointerSized = sizeof(void*) == sizeof(std::int64_t) ? VT_I8 : VT_I4;

struct CreatableClass {
    const wchar_t* name;
    CLSID clsid;
    IID iid;
    /// The codes for which `build` makes it; none for what is no element.
    std::vector<std::int32_t> codes;
};

/// Every creatable class, Main2 first.
extern const std::vector<CreatableClass> kClasses;

/// The classes that are not creatable: `build` alone makes them.
extern const std::vector<CreatableClass> kClassesOfBuild;
/// Those and the creatable ones.
std::vector<CreatableClass> allClasses();

struct Member {
    std::wstring name;
    DISPID id;
    WORD kinds;
    std::size_t parameters;
};

/// The members of an object as its type information lists them.
std::vector<Member> membersOf(const LateBoundObject& object);

/// The library, loaded from this program's folder and used by its entry points without registration.
/// Its end checks that the library can be unloaded, and that it kept none of the host's objects.
class Library {
public:
    Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library();

    static std::wstring path();

    HRESULT getClassObject(REFCLSID clsid, REFIID iid, void** object) const;
    HRESULT canUnloadNow() const;
    HMODULE module() const { return mModule; }
    LateBoundObject create(REFCLSID clsid) const;
    /// An object as a host gets it: an element is built, with a sink, which its class' object alone is not.
    LateBoundObject create(const CreatableClass& creatable) const;
    LateBoundObject main2() const { return create(__uuidof(::Main2)); }
    /// What a host does: Main2, `build`, and Main2 let go.
    LateBoundObject build(std::int32_t whichType, IDispatch* formattedStr = nullptr) const;

private:
    HMODULE mModule;
    long mLiveObjects = DispatchObject::liveObjects();
};

/// A test with the library loaded anew.
class LibraryTest : public testing::Test {
protected:
    Library library;
};

/// A value as the expectations write it: a text as it is, an object as "object" or "Nothing", an array
/// in braces.
std::wstring shown(const VARIANT& value);
inline std::wstring shown(const Variant& value) {
    return shown(value.get());
}

std::wstring joined(const std::vector<std::wstring>& lines, const wchar_t* separator);

/// Passes a variable of any type by reference.
Variant referenceTo(VARTYPE type, void* variable);

/// A call by id with whatever the test wants to pass; the arguments stand in their natural order.
HRESULT invoke(IDispatch* object, DISPID id, int kinds, const std::vector<VARIANT>& arguments, VARIANT* result);
DISPID idOf(IDispatch* object, const wchar_t* name);

}  // namespace comtests
