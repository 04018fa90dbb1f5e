#include "heaps.h"
#include "import_patch.h"
#include "library.h"

namespace comtests {
namespace {

using Lifetime = LibraryTest;

TEST_F(Lifetime, EveryInterfaceOfAnObjectLeadsToEveryOther) {
    for (const CreatableClass& creatable : kClasses) {
        SCOPED_TRACE(testing::Message() << creatable.name);
        const LateBoundObject object = library.create(creatable.clsid);
        const IID interfaces[] = {IID_IUnknown, IID_IDispatch, creatable.iid};
        ComPointer<IUnknown> identity;
        ASSERT_EQ(object.dispatch()->QueryInterface(IID_IUnknown, identity.putVoid()), S_OK);
        for (const IID& from : interfaces) {
            ComPointer<IUnknown> first;
            ASSERT_EQ(identity->QueryInterface(from, first.putVoid()), S_OK);
            for (const IID& to : interfaces) {
                ComPointer<IUnknown> second;
                EXPECT_EQ(first->QueryInterface(to, second.putVoid()), S_OK);
            }
            ComPointer<IUnknown> again;
            EXPECT_EQ(first->QueryInterface(IID_IUnknown, again.putVoid()), S_OK);
            EXPECT_EQ(again.get(), identity.get());
            void* none = &none;
            EXPECT_EQ(first->QueryInterface(IID_IClassFactory, &none), E_NOINTERFACE);
            EXPECT_EQ(none, nullptr);
            EXPECT_EQ(first->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
        }
        for (const CreatableClass& other : kClasses) {
            ComPointer<IUnknown> foreign;
            const HRESULT expected = other.iid == creatable.iid ? S_OK : E_NOINTERFACE;
            EXPECT_EQ(identity->QueryInterface(other.iid, foreign.putVoid()), expected);
        }
        EXPECT_EQ(identity->AddRef(), 3u);
        EXPECT_EQ(identity->Release(), 2u);
    }
}

TEST_F(Lifetime, ClassFactories) {
    void* none = &none;
    EXPECT_EQ(library.getClassObject(__uuidof(_Main2), IID_IClassFactory, &none), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(none, nullptr);
    for (const CreatableClass& built : kClassesOfBuild) {
        EXPECT_EQ(library.getClassObject(built.clsid, IID_IClassFactory, &none), CLASS_E_CLASSNOTAVAILABLE);
    }
    EXPECT_EQ(library.getClassObject(__uuidof(::Main2), IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(library.getClassObject(__uuidof(::Main2), IID_IDispatch, &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);
    for (const CreatableClass& creatable : kClasses) {
        SCOPED_TRACE(testing::Message() << creatable.name);
        ComPointer<IClassFactory> factory;
        ASSERT_EQ(library.getClassObject(creatable.clsid, IID_IClassFactory, factory.putVoid()), S_OK);
        EXPECT_EQ(library.canUnloadNow(), S_FALSE);
        ComPointer<IUnknown> object;
        EXPECT_EQ(factory->CreateInstance(nullptr, creatable.iid, object.putVoid()), S_OK);
        none = &none;
        EXPECT_EQ(factory->CreateInstance(object.get(), IID_IUnknown, &none), CLASS_E_NOAGGREGATION);
        EXPECT_EQ(none, nullptr);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &none), E_NOINTERFACE);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
        EXPECT_EQ(factory->QueryInterface(creatable.iid, &none), E_NOINTERFACE);
        factory.reset();
        EXPECT_EQ(library.canUnloadNow(), S_FALSE);
        object.reset();
        EXPECT_EQ(library.canUnloadNow(), S_OK);
        ASSERT_EQ(library.getClassObject(creatable.clsid, IID_IClassFactory, factory.putVoid()), S_OK);
        EXPECT_EQ(factory->LockServer(TRUE), S_OK);
        IClassFactory* const locked = factory.get();
        locked->AddRef();
        factory.reset();
        EXPECT_EQ(locked->LockServer(FALSE), S_OK);
        EXPECT_EQ(library.canUnloadNow(), S_FALSE);
        EXPECT_EQ(locked->Release(), 0u);
        EXPECT_EQ(library.canUnloadNow(), S_OK);
    }
}

TEST_F(Lifetime, ALockAloneKeepsTheLibraryLoaded) {
    for (const BOOL lock : {TRUE, FALSE}) {
        ComPointer<IClassFactory> factory;
        ASSERT_EQ(library.getClassObject(__uuidof(::Main2), IID_IClassFactory, factory.putVoid()), S_OK);
        factory->LockServer(lock);
        factory.reset();
        EXPECT_EQ(library.canUnloadNow(), lock != FALSE ? S_FALSE : S_OK);
    }
}

enum class TypeLibrary { HasAShortPath, IsRegistered, IsNewerWhereRegistered, IsNowhere };
TypeLibrary theTypeLibrary;

HRESULT WINAPI loadByPath(LPCOLESTR path, REGKIND kind, ITypeLib** library) {
    const bool isShort = std::wstring(path).find(L'~') != std::wstring::npos;
    return isShort && theTypeLibrary == TypeLibrary::HasAShortPath ? LoadTypeLibEx(path, kind, library)
                                                                   : TYPE_E_CANTLOADLIBRARY;
}

HRESULT WINAPI loadRegistered(REFGUID, WORD, WORD, LCID, ITypeLib** library) {
    switch (theTypeLibrary) {
        case TypeLibrary::IsRegistered: return LoadTypeLibEx(Library::path().c_str(), REGKIND_NONE, library);
        case TypeLibrary::IsNewerWhereRegistered: return LoadTypeLibEx(L"stdole2.tlb", REGKIND_NONE, library);
        default: return TYPE_E_LIBNOTREGISTERED;
    }
}

TEST_F(Lifetime, AnObjectHasItsTypeInformationOrIsNotMade) {
    const ImportPatch patches[] = {{library.module(), "LoadTypeLibEx", loadByPath},
                                   {library.module(), "LoadRegTypeLib", loadRegistered}};
    struct Case {
        TypeLibrary where;
        HRESULT outcome;
    };
    const Case cases[] = {{TypeLibrary::HasAShortPath, S_OK},
                          {TypeLibrary::IsRegistered, S_OK},
                          {TypeLibrary::IsNewerWhereRegistered, TYPE_E_CANTLOADLIBRARY},
                          {TypeLibrary::IsNowhere, TYPE_E_CANTLOADLIBRARY}};
    for (const Case& c : cases) {
        theTypeLibrary = c.where;
        ComPointer<IClassFactory> factory;
        ASSERT_EQ(library.getClassObject(__uuidof(::OutputTemplateYear), IID_IClassFactory, factory.putVoid()), S_OK);
        ComPointer<IDispatch> object;
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.putVoid()), c.outcome) << &c - cases;
        if (object) {
            EXPECT_EQ(textOf(LateBoundObject(object).call(L"formatStr", {L"1990"})), L"1990");
        }
        factory.reset();
        object.reset();
        // The type information that was read is given up with the last object.
        EXPECT_EQ(library.canUnloadNow(), S_OK);
    }
}

TEST_F(Lifetime, ElementsOutliveTheirFactoryAndClonesTheirOriginal) {
    for (const CreatableClass& creatable : allClasses()) {
        if (creatable.codes.empty()) continue;
        LateBoundObject element = library.create(creatable);
        if (idOf(element.dispatch(), L"Clone") != DISPID_UNKNOWN) {
            const auto source = makeObject<FormattedText>();
            element = LateBoundObject(objectOf(element.call(L"Clone", {source.get()})));
        }
        const auto sink = makeObject<FormattedText>();
        element.call(L"Parse", {L"spring"});
        element.call(L"ToFormattedString", {sink.get()});
        EXPECT_EQ(sink->toString().substr(1), L"pring") << creatable.name;
    }
}

/// Thread-local indexes that other libraries of the process can still get.
std::size_t freeThreadLocalIndexes() {
    std::vector<DWORD> indexes;
    for (DWORD index = TlsAlloc(); index != TLS_OUT_OF_INDEXES; index = TlsAlloc()) indexes.push_back(index);
    for (const DWORD index : indexes) TlsFree(index);
    return indexes.size();
}

TEST(Loading, AgainAndAgainTakesNothing) {
    std::size_t indexes = 0;
    std::size_t blocks = 0;
    for (int cycle = 0; cycle < 1500; ++cycle) {
        { const Library unused; }
        {
            const Library loaded;
            EXPECT_EQ(textOf(loaded.build(kYear).call(L"formatStr", {L"1990"})), L"1990");
        }
        if (cycle == 10) {
            indexes = freeThreadLocalIndexes();
            blocks = blocksInUse();
        }
    }
    EXPECT_EQ(freeThreadLocalIndexes(), indexes);
    EXPECT_NEAR(static_cast<double>(blocksInUse()), static_cast<double>(blocks), 10);
}

}  // namespace
}  // namespace comtests
