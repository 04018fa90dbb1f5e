#pragma once

#include <memory>
#include <utility>

#include "host/com/arguments.h"
#include "host/com/com_object.h"
#include "host/com/element_access.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// What all adapters of element templates share: the element, and the members that have one form in all interfaces.
template <class Interface, class Element>
class ElementAdapter : public ComObject<Interface> {
public:
    explicit ElementAdapter(std::shared_ptr<Element> element = std::make_shared<Element>())
        : mElement(std::move(element)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return this->call([&] { mElement->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return this->call([&] {
            mElement->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }

protected:
    ~ElementAdapter() override = default;

    ComPtr<IUnknown> elementAccess() override { return ElementAccess::to(this, mElement); }

    std::shared_ptr<Element> mElement;
};

/// The same of elements whose output is assembled from slots.
template <class Interface, class Element>
class AssembledElementAdapter : public ElementAdapter<Interface, Element> {
public:
    using ElementAdapter<Interface, Element>::ElementAdapter;

    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return this->call(result, [&] {
            return fillSlotArrays(*this->mElement, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }

protected:
    ~AssembledElementAdapter() override = default;
};

}  // namespace quorvel::host
