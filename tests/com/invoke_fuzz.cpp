// Random late-bound calls to every class of the type library and to whatever objects these calls return: no call
// may fail, end the process, or leave an object or a block of memory behind. Rounds are seeded; each of them is
// played until the heaps hold no more after it than before.
//
// usage: InvokeFuzz [SECONDS [SEED]] [/trace]    from a failing seed on: InvokeFuzz 1 SEED

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <deque>
#include <map>
#include <random>
#include <utility>

#include "com/bridge_to_vb.h"
#include "com/late_bound.h"
#include "heaps.h"
#include "text/formatted_text.h"

namespace comtests {
namespace {

using namespace sample;

constexpr int kRoundsOfASeed = 10;
constexpr int kCallsOfARound = 400;
constexpr std::size_t kMostObjects = 64;
constexpr DISPID kFirstIdOfTheBase = 0x60000000;
constexpr int kElementCodes = 20;
constexpr long kMostCallsBack = 50;

std::mt19937 theRandom;
long theFailures = 0;
long theCalls = 0;
long theCallsBack = 0;

std::size_t below(std::size_t limit) {
    return theRandom() % limit;
}
bool once(std::size_t in) {
    return below(in) == 0;
}
template <class T, std::size_t size>
const T& oneOf(const T (&values)[size]) {
    return values[below(size)];
}

void fail(const std::wstring& what) {
    ++theFailures;
    std::printf("failed: %ls\n", what.c_str());
}

// --- What is passed: values of every type, by value and by reference.

// The objects of the library that the host of a round holds.
std::deque<ComPointer<IDispatch>> theObjects;
long theLiveHosts = 0;

Variant randomValue(int depth);
Variant randomArray(int depth);
void callRandomly(IDispatch* object);

/// An object of the host that has every member, each of which does and answers anything.
class AnyObject final : public IDispatch {
public:
    AnyObject() { ++theLiveHosts; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool isOurs = id == IID_IUnknown || id == IID_IDispatch;
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
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) override {
        std::fill(ids, ids + count, static_cast<DISPID>(below(100) + 1));
        return once(20) ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                                     UINT*) override {
        static int depth = 0;
        // What calls back from many of its members would otherwise make as many calls as a tree has leaves.
        if (depth < 3 && theCallsBack < kMostCallsBack && once(8) && !theObjects.empty()) {
            ++depth;
            ++theCallsBack;
            const ComPointer<IDispatch> object = theObjects[below(theObjects.size())];
            callRandomly(object.get());
            --depth;
        }
        if (once(20)) return oneOf({E_FAIL, DISP_E_EXCEPTION, DISP_E_MEMBERNOTFOUND, RPC_E_DISCONNECTED});
        if (parameters->cArgs > 0 && once(4)) writeInto(parameters->rgvarg[below(parameters->cArgs)]);
        if (result != nullptr) *result = randomValue(0).release();
        return S_OK;
    }

private:
    ~AnyObject() { --theLiveHosts; }

    static void writeInto(VARIANT& argument) {
        if ((argument.vt & (VT_BYREF | VT_ARRAY)) == (VT_BYREF | VT_ARRAY)) {
            VARIANT other = randomArray(0).release();
            std::swap(*argument.pparray, other.parray);
            VariantClear(&other);
        }
        if (argument.vt != (VT_BYREF | VT_VARIANT)) return;
        VARIANT old = *argument.pvarVal;
        *argument.pvarVal = randomValue(0).release();
        VariantClear(&old);
    }

    ULONG mReferences = 1;
};

std::wstring randomText() {
    static constexpr const wchar_t* kPieces[] = {L"Kuhn, Thomas S.",
                                                 L" and ",
                                                 L", Jr.",
                                                 L"; ",
                                                 L"et al.",
                                                 L"eds.",
                                                 L"(",
                                                 L")",
                                                 L"[c. 1990?]",
                                                 L"n.d.",
                                                 L"2011",
                                                 L"May 5, ",
                                                 L"10:23 a.m. PDT",
                                                 L"pp. 1-2",
                                                 L", ",
                                                 L"vol. 2",
                                                 L"The Structure of ",
                                                 L"\u201CA\u201D",
                                                 L"\u2013",
                                                 L"Portland, OR",
                                                 L"U of Chicago P",
                                                 L"?",
                                                 L". ",
                                                 L"  ",
                                                 L"\r\n",
                                                 L"\0",
                                                 L"quantum; \"field theory\"",
                                                 L"||",
                                                 L"medium=Web",
                                                 L"=__CALLBACK_FOR_CHECKING__",
                                                 L"\xD83D",
                                                 L"trans. ",
                                                 L"http://"};
    std::wstring text;
    for (std::size_t pieces = below(7); pieces > 0; --pieces) {
        text += once(8) ? std::wstring(1, static_cast<wchar_t>(below(0x10000))) : std::wstring(oneOf(kPieces));
    }
    return text;
}

Variant randomArray(int depth) {
    static constexpr VARTYPE kTypes[] = {VT_VARIANT, VT_VARIANT, VT_BSTR, VT_BSTR, VT_BOOL, VT_DISPATCH, VT_I2, VT_R8};
    static constexpr LONG kBounds[] = {0, 0, 0, 1, -3, LONG_MAX - 40, LONG_MIN};
    SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(below(36)), oneOf(kBounds)}, {2, 0}};
    Variant array;
    const VARTYPE type = oneOf(kTypes);
    array.get().vt = static_cast<VARTYPE>(VT_ARRAY | type);
    array.get().parray = once(20) ? nullptr : SafeArrayCreate(type, once(20) ? 2 : 1, bounds);
    for (ULONG i = 0; array.get().parray != nullptr && i < bounds[0].cElements; ++i) {
        const LONG indexes[] = {static_cast<LONG>(static_cast<ULONG>(bounds[0].lLbound) + i), 0};
        try {
            assignElement(array.get(), indexes[0], type == VT_BSTR ? Variant(randomText()) : randomValue(depth + 1));
        } catch (const ComError&) {
            break;  // Another type, or more dimensions: it stays as it is.
        }
    }
    return array;
}

Variant randomObject() {
    switch (below(4)) {
        case 0: return static_cast<IDispatch*>(nullptr);
        case 1: return theObjects.empty() ? Variant() : Variant(theObjects[below(theObjects.size())].get());
        case 2: return makeObject<FormattedText>().get();
        default: return ComPointer<AnyObject>::owning(new AnyObject()).get();
    }
}

Variant randomValue(int depth) {
    switch (below(depth == 0 ? 14 : 9)) {
        case 0: return {};
        case 1: return Variant::missing();
        case 2: return once(2);
        case 3: return static_cast<std::int16_t>(theRandom());
        case 4: return static_cast<std::int32_t>(below(40)) - 2;
        case 5: return static_cast<std::int32_t>(theRandom());
        case 6:
        case 7: return randomText();
        case 8: return randomObject();
        case 9: {
            static constexpr VARTYPE kTypes[] = {VT_NULL, VT_R8, VT_DATE, VT_CY, VT_I8, VT_UI4, VT_ERROR, VT_UNKNOWN};
            Variant odd;
            odd.get().vt = oneOf(kTypes);
            odd.get().llVal = odd.get().vt == VT_UNKNOWN ? 0 : static_cast<LONGLONG>(theRandom());
            return odd;
        }
        case 10:
        case 11: return randomArray(depth);
        default: return randomObject();
    }
}

// --- Who is called.

struct Member {
    DISPID id;
    WORD kinds;
    std::size_t parameters;
};

const std::vector<Member>& membersOf(IDispatch* object) {
    static std::map<std::wstring, std::vector<Member>> known;
    ComPointer<ITypeInfo> info;
    BSTR name = nullptr;
    if (FAILED(object->GetTypeInfo(0, LOCALE_NEUTRAL, info.put()))) fail(L"an object without type information");
    info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    std::vector<Member>& members = known[name];
    SysFreeString(name);
    FUNCDESC* function = nullptr;
    for (UINT i = 0; members.size() <= i && SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
        members.push_back(
            {function->memid, static_cast<WORD>(function->invkind), static_cast<std::size_t>(function->cParams)});
        info->ReleaseFuncDesc(function);
    }
    return members;
}

void callRandomly(IDispatch* object) {
    const std::vector<Member>& members = membersOf(object);
    const Member& member = members[below(members.size())];
    if (member.id >= kFirstIdOfTheBase) return;
    std::deque<Variant> owned;
    std::vector<VARIANT> arguments(once(8) ? below(10) : member.parameters);
    for (VARIANT& argument : arguments) {
        VARIANT& value = owned.emplace_back(randomValue(0)).get();
        argument = value;
        if (once(3)) {
            argument.vt = VT_BYREF | VT_VARIANT;
            argument.pvarVal = &value;
        } else if (once(3) && value.vt != VT_EMPTY && value.vt != VT_NULL) {
            argument.vt = static_cast<VARTYPE>(VT_BYREF | value.vt);
            argument.byref = &value.llVal;
        }
    }
    DISPID names[16];
    const bool isPut = (member.kinds & DISPATCH_PROPERTYPUT) != 0;
    std::generate(std::begin(names), std::end(names), [] { return static_cast<DISPID>(below(12)) - 1; });
    if (isPut) names[0] = DISPID_PROPERTYPUT;
    const std::size_t named = once(10) ? below(arguments.size() + 1) : isPut && !arguments.empty() ? 1 : 0;
    DISPPARAMS parameters = {arguments.data(), names, static_cast<UINT>(arguments.size()), static_cast<UINT>(named)};
    Variant result;
    ++theCalls;
    const HRESULT code = object->Invoke(member.id, IID_NULL, LOCALE_USER_DEFAULT, member.kinds, &parameters,
                                        once(10) ? nullptr : &result.get(), nullptr, nullptr);
    if (code != S_OK) fail(L"member " + std::to_wstring(member.id) + L" answers " + describe(code));
    const bool isObject = result.get().vt == VT_DISPATCH && result.get().pdispVal != nullptr;
    UINT count = 0;
    if (isObject && SUCCEEDED(result.get().pdispVal->GetTypeInfoCount(&count)) && count == 1 &&
        theObjects.size() < kMostObjects) {
        theObjects.push_back(objectOf(result));
    }
}

// --- Rounds.

template <class Function>
Function entryPoint(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

/// The platform keeps freed texts for later, which would look like a leak.
void keepNoTexts() {
    const auto noCache = entryPoint<void(WINAPI*)()>(GetModuleHandleW(L"oleaut32.dll"), "SetOaNoCache");
    if (noCache != nullptr) noCache();
}

class LoadedLibrary {
public:
    LoadedLibrary() {
        std::wstring path(MAX_PATH, L'\0');
        path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
        path = path.substr(0, path.find_last_of(L'\\') + 1) + L"QuorvelTemplate.dll";
        const HMODULE module = LoadLibraryW(path.c_str());
        mGetClassObject = entryPoint<LPFNGETCLASSOBJECT>(module, "DllGetClassObject");
        mCanUnloadNow = entryPoint<LPFNCANUNLOADNOW>(module, "DllCanUnloadNow");
        ComPointer<ITypeLib> library;
        if (FAILED(LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.put()))) return;
        for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
            ComPointer<ITypeInfo> info;
            TYPEATTR* attributes = nullptr;
            library->GetTypeInfo(i, info.put());
            info->GetTypeAttr(&attributes);
            const bool isCreatable =
                attributes->typekind == TKIND_COCLASS && (attributes->wTypeFlags & TYPEFLAG_FCANCREATE) != 0;
            if (isCreatable) mClasses.push_back(attributes->guid);
            info->ReleaseTypeAttr(attributes);
        }
    }

    std::size_t classes() const { return mClasses.size(); }
    bool canUnload() const { return mCanUnloadNow() == S_OK; }

    /// An object of each class, and one of each kind that `build` makes: among them what no class name makes.
    void createAll() const {
        for (const CLSID& clsid : mClasses) {
            ComPointer<IClassFactory> factory;
            ComPointer<IDispatch> object;
            if (FAILED(mGetClassObject(clsid, IID_IClassFactory, factory.putVoid())) ||
                FAILED(factory->CreateInstance(nullptr, IID_IDispatch, object.putVoid()))) {
                fail(L"a class of the type library makes no object");
                continue;
            }
            theObjects.push_back(object);
            const LateBoundObject main(object);
            for (std::int32_t code = 0; code < kElementCodes; ++code) {
                const auto sink = makeObject<FormattedText>();
                const CallResult built = main.tryCall(L"build", DISPATCH_METHOD, {code, sink.get()});
                if (!built.ok()) break;
                if (const ComPointer<IDispatch> element = objectOf(built.value)) theObjects.push_back(element);
            }
        }
    }

private:
    LPFNGETCLASSOBJECT mGetClassObject = nullptr;
    LPFNCANUNLOADNOW mCanUnloadNow = nullptr;
    std::vector<CLSID> mClasses;
};

/// Lets everything go. Objects that hold each other as sinks are given another one first, as any host has to;
/// meanwhile the host's own objects find none to call.
void releaseAll() {
    const auto objects = std::exchange(theObjects, {});
    const auto sink = makeObject<FormattedText>();
    for (const ComPointer<IDispatch>& object : objects) {
        LateBoundObject(object).tryCall(L"Initialize", DISPATCH_METHOD, {sink.get()});
    }
}

void play(const LoadedLibrary& library, unsigned seed, long hosts) {
    for (unsigned round = 0; round < kRoundsOfASeed; ++round) {
        theRandom.seed(seed * kRoundsOfASeed + round);
        library.createAll();
        for (int call = 0; call < kCallsOfARound; ++call) {
            const ComPointer<IDispatch> object = theObjects[below(theObjects.size())];
            theCallsBack = 0;
            callRandomly(object.get());
        }
        releaseAll();
        if (!library.canUnload()) fail(L"objects of the library are left");
        if (theLiveHosts + DispatchObject::liveObjects() != hosts) fail(L"objects of the host are left");
    }
}

/// Plays a seed until the heaps stay as they are: tables and caches are filled by then, and what still grows
/// is a leak.
void playUntilConstant(const LoadedLibrary& library, unsigned seed, long hosts) {
    constexpr int kMostPasses = 5;
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    play(library, seed, hosts);
    std::size_t before = blocksInUse();
    for (int pass = 1; pass < kMostPasses; ++pass) {
        play(library, seed, hosts);
        const std::size_t after = blocksInUse();
        if (after <= before) return;
        before = after;
    }
    fail(L"each pass leaves blocks on the heap");
}

int run(int count, char** values) {
    const std::chrono::seconds seconds(count > 1 ? std::atoi(values[1]) : 60);
    unsigned seed = count > 2 ? static_cast<unsigned>(std::atoi(values[2])) : 1;
    keepNoTexts();
    const LoadedLibrary library;
    const auto service = ComPointer<AnyObject>::owning(new AnyObject());
    const RunningBridgeToVB host(service.get());
    const long hosts = theLiveHosts + DispatchObject::liveObjects();
    const auto end = std::chrono::steady_clock::now() + seconds;
    do {
        playUntilConstant(library, seed++, hosts);
    } while (theFailures == 0 && std::chrono::steady_clock::now() < end);
    if (library.classes() == 0) fail(L"the type library has no classes");
    std::printf("%ld calls to %zu classes, %ld failures\ndone\n", theCalls, library.classes(), theFailures);
    return theFailures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace comtests

int main(int count, char** values) {
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int status = comtests::run(count, values);
    CoUninitialize();
    return status;
}
