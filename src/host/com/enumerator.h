#pragma once

#include "host/com/automation.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "host/com/com_ptr.h"
#include "host/com/module.h"

namespace quorvel::host {

/// An enumerator of the platform (IEnumConnections, IEnumVARIANT ...) over a list as it was when the
/// enumerator was made.
/// @param Item what `Next` hands out
/// @param Entry what the list holds
/// @param give makes the item that the caller owns of an entry
template <class Interface, class Item, class Entry, Item (*give)(const Entry&)>
class Enumerator final : public Interface {
public:
    using List = std::shared_ptr<const std::vector<Entry>>;

    static ComPtr<Interface> over(std::vector<Entry> list) {
        return ComPtr<Interface>(new Enumerator(std::make_shared<const std::vector<Entry>>(std::move(list)), 0));
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        const bool isOurs = iid == IID_IUnknown || iid == __uuidof(Interface);
        *object = isOurs ? this : nullptr;
        if (!isOurs) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --mReferences;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    STDMETHODIMP Next(ULONG count, Item* items, ULONG* fetched) override {
        if (fetched != nullptr) {
            *fetched = 0;
        }
        if (items == nullptr || (fetched == nullptr && count != 1)) {
            return E_POINTER;
        }
        ULONG given = 0;
        for (; given < count && mNext < mList->size(); ++given) {
            items[given] = give((*mList)[mNext++]);
        }
        if (fetched != nullptr) {
            *fetched = given;
        }
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override {
        const std::size_t left = mList->size() - mNext;
        mNext += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        mNext = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(Interface** copy) override {
        if (copy == nullptr) {
            return E_POINTER;
        }
        *copy = nullptr;
        try {
            *copy = ComPtr<Interface>(new Enumerator(mList, mNext)).detach();
        } catch (...) {
            return E_OUTOFMEMORY;
        }
        return S_OK;
    }

private:
    Enumerator(List list, std::size_t next) : mList(std::move(list)), mNext(next) {}
    ~Enumerator() = default;

    ModuleReference mReference;
    List mList;
    std::size_t mNext;
    std::atomic<ULONG> mReferences = 0;
};

}  // namespace quorvel::host
