#include <malloc.h>

#include <algorithm>
#include <cstdlib>

#include "import_patch.h"
#include "library.h"

namespace comtests {
namespace {

// What the library can still allocate.
std::size_t theBytesLeft = 0;
bool theMemoryRanOut = false;

void* taken(void* block) {
    theBytesLeft -= block != nullptr ? std::min(_msize(block), theBytesLeft) : 0;
    return block;
}
bool isThere(std::size_t size) {
    theMemoryRanOut = theMemoryRanOut || size > theBytesLeft;
    return size <= theBytesLeft;
}
void* scarceMalloc(std::size_t size) {
    return isThere(size) ? taken(std::malloc(size)) : nullptr;
}
void* scarceCalloc(std::size_t count, std::size_t size) {
    return isThere(count * size) ? taken(std::calloc(count, size)) : nullptr;
}
void scarceFree(void* block) {
    theBytesLeft += block != nullptr ? _msize(block) : 0;
    std::free(block);
}
void* scarceRealloc(void* block, std::size_t size) {
    if (!isThere(size)) return nullptr;
    theBytesLeft += block != nullptr ? _msize(block) : 0;
    return taken(std::realloc(block, size));
}

class Memory : public LibraryTest {
protected:
    /// Does something with more and more memory until that is enough.
    template <class Work, class Check>
    void withMoreAndMore(Work work, Check check) {
        for (std::size_t enough = 0; enough == 0 || theMemoryRanOut; enough += 40) {
            {
                const ImportPatch patches[] = {{library.module(), "malloc", scarceMalloc},
                                               {library.module(), "calloc", scarceCalloc},
                                               {library.module(), "realloc", scarceRealloc},
                                               {library.module(), "free", scarceFree}};
                theBytesLeft = enough;
                theMemoryRanOut = false;
                work();
            }
            check();
            if (HasFailure()) FAIL() << "with " << enough << " bytes";
        }
    }
};

TEST_F(Memory, MayRunOutAnywhereInACall) {
    const auto sink = makeObject<FormattedText>();
    const LateBoundObject main = library.main2();
    for (const CreatableClass& creatable : kClasses) {
        if (creatable.codes.empty()) continue;
        SCOPED_TRACE(testing::Message() << creatable.name);
        const LateBoundObject element = library.create(creatable);
        const auto work = [&] {
            main.call(L"build", {creatable.codes.front(), sink.get()});
            element.call(L"Parse", {L"Paris, May 1990, p. 3"});
            sink->reset();
            element.call(L"ToFormattedString", {sink.get()});
            return sink->toString();
        };
        const std::wstring expected = work();
        withMoreAndMore(work, [&] { EXPECT_EQ(work(), expected); });
    }
}

struct Creation {
    const Library& library;
    HRESULT outcome = E_FAIL;
};

DWORD WINAPI createThere(void* wanted) {
    auto& creation = *static_cast<Creation*>(wanted);
    IClassFactory* factory = nullptr;
    IDispatch* object = nullptr;
    void** const places[] = {reinterpret_cast<void**>(&factory), reinterpret_cast<void**>(&object)};
    creation.outcome = creation.library.getClassObject(__uuidof(::OutputTemplateYear), IID_IClassFactory, places[0]);
    if (factory != nullptr) {
        creation.outcome = factory->CreateInstance(nullptr, IID_IDispatch, places[1]);
        factory->Release();
    }
    if (object != nullptr) object->Release();
    return 0;
}

TEST_F(Memory, MayRunOutWhereAThreadBegins) {
    Creation creation{library};
    withMoreAndMore(
        [&] {
            const HANDLE thread = CreateThread(nullptr, 0, createThere, &creation, 0, nullptr);
            WaitForSingleObject(thread, INFINITE);
            CloseHandle(thread);
        },
        [&] { EXPECT_EQ(creation.outcome, theMemoryRanOut ? E_OUTOFMEMORY : S_OK); });
}

}  // namespace
}  // namespace comtests
