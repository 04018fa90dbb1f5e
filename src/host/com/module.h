#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <string>

namespace quorvel::host {

/// The loaded DLL: its handle, and what keeps it in use.
class Module {
public:
    /// Set once by the loader.
    static void setHandle(HINSTANCE handle);
    static HINSTANCE handle();
    /// The full path of the DLL.
    static std::wstring path();

    /// Keeps the DLL loaded until the process ends, whoever frees it: the run time library takes a
    /// thread-local index of the process that it never gives back, once a load, and another thread may still
    /// be on its way out of the last object.
    static void keepLoaded();
    /// Whether it is kept so.
    static bool isKeptLoaded();
    /// Makes the variables of the calling thread, before anything on it needs them. The run time library ends
    /// the process where there is no memory for them; this function returns false.
    static bool prepareThread() noexcept;

    /// Live objects and server locks.
    static void addReference();
    static void releaseReference();
    static bool isInUse();
};

/// A member of each object that keeps the DLL in use.
class ModuleReference {
public:
    ModuleReference() { Module::addReference(); }
    ModuleReference(const ModuleReference&) = delete;
    ModuleReference& operator=(const ModuleReference&) = delete;
    ~ModuleReference() { Module::releaseReference(); }
};

/// A member of each object of a kind: calls `Kind::lastOfThreadEnds()` with the last one of its thread. An
/// object that ends on another thread than its own is taken off its own thread's count.
template <class Kind>
class CountedPerThread {
public:
    CountedPerThread() : mCount(countOfThisThread()) { ++*mCount; }
    CountedPerThread(const CountedPerThread&) = delete;
    CountedPerThread& operator=(const CountedPerThread&) = delete;
    ~CountedPerThread() {
        if (--*mCount == 0 && mCount == countOfThisThread()) {
            Kind::lastOfThreadEnds();
        }
    }

private:
    using Count = std::shared_ptr<std::atomic<long>>;
    static const Count& countOfThisThread() {
        static thread_local const Count count = std::make_shared<std::atomic<long>>(0);
        return count;
    }

    Count mCount;
};

/// A member of each object that the host may hold: keeps the DLL in use, and lets the host's error-report
/// service go with the last one of its thread.
class ObjectLife {
public:
    static void lastOfThreadEnds() noexcept;

private:
    ModuleReference mReference;
    CountedPerThread<ObjectLife> mCounted;
};

}  // namespace quorvel::host
