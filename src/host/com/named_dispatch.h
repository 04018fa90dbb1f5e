#pragma once

#include "host/com/automation.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/letter_case.h"
#include "core/text.h"
#include "host/com/com_ptr.h"
#include "host/com/module.h"
#include "host/com/variant.h"

namespace quorvel::host {

/// The arguments of a late-bound call in their natural order; of a property that is written, its indexes and then the
/// new value. One that is missing, Empty or Null is the empty value of its type; what does not convert is error 13
/// or 6.
class NamedArguments {
public:
    explicit NamedArguments(const DISPPARAMS& parameters) : mReversed(parameters.rgvarg, parameters.cArgs) {}

    std::size_t size() const { return mReversed.size(); }
    bool has(std::size_t index) const;
    /// Empty when it is missing.
    const VARIANT& operator[](std::size_t index) const;

    Text text(std::size_t index) const;
    bool flag(std::size_t index) const;
    std::int32_t number(std::size_t index) const;
    /// Of a script, which writes large numbers without sign.
    std::uint32_t bits(std::size_t index) const;
    float real(std::size_t index) const;
    /// Null for Nothing.
    ComPtr<IDispatch> object(std::size_t index) const;

    /// The new value of a property is behind its indexes.
    std::size_t newValue() const { return size() - 1; }
    NamedArguments indexes() const { return NamedArguments(mReversed.subspan(1)); }

private:
    explicit NamedArguments(std::span<const VARIANTARG> reversed) : mReversed(reversed) {}
    Variant brought(std::size_t index, VARTYPE type) const;

    std::span<const VARIANTARG> mReversed;
};

/// A window handle for callers of whom scripts are some: they know no 64-bit numbers, and of a handle 32 bits count.
inline Variant handleVariant(std::intptr_t handle) {
    return Variant(static_cast<std::int32_t>(handle));
}

/// What callers may do with a member.
struct NamedMember {
    /// As reports name it.
    TextView name;
    /// Of its value; what fails gives the empty value of the type. VT_EMPTY for a method without value.
    VARTYPE type = VT_EMPTY;
    bool isMethod = false;
    bool isRead = false;
    bool isWritten = false;
    /// Arguments of a call, indexes of a property.
    std::size_t leastArguments = 0;
    std::size_t mostArguments = 0;
};

/// The base of our objects that no type library describes: their members are known by name alone, in any letter case.
///
/// Calls behave as those of `ComObject` do: a member of the object never fails towards the caller. Surplus and missing
/// arguments are reported, and the member runs; an argument that does not convert is a reported error of the member,
/// which then gives the empty value. Arguments by name are not offered.
class NamedDispatch : public IDispatch {
public:
    NamedDispatch(const NamedDispatch&) = delete;
    NamedDispatch& operator=(const NamedDispatch&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override;

protected:
    NamedDispatch() = default;
    virtual ~NamedDispatch() = default;

    /// The number of a member, above 0 and the same as long as the object lives; DISPID_UNKNOWN when there is none.
    virtual DISPID idOf(TextView name) = 0;
    virtual std::optional<NamedMember> memberOf(DISPID id) = 0;
    /// Calls a method or reads a property.
    virtual Variant read(DISPID id, const NamedArguments& arguments) = 0;
    virtual void write(DISPID id, const NamedArguments& indexesAndValue) = 0;
    /// The member that stands for the object itself; empty when it has none.
    virtual TextView defaultMember() const { return {}; }
    /// Reports the exception in flight as an error of a procedure. Only inside a catch block.
    virtual void report(TextView procedure) noexcept = 0;
    /// What the object hands to others of the library; see element_access.h.
    virtual ComPtr<IUnknown> elementAccess() { return {}; }
    /// The last reference is gone. What is called here may take another one, which keeps the object.
    virtual void released() noexcept {}

private:
    DISPID memberId(DISPID id);
    void run(DISPID id, const NamedMember& member, bool isWriting, const DISPPARAMS& parameters,
             VARIANT* result) noexcept;

    ObjectLife mLife;
    std::atomic<ULONG> mReferences = 0;
    bool mIsEnding = false;
};

/// A member of an object of which all members stand in a table.
template <class Target>
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which rows are read
struct NamedRow {
    using Read = Variant (*)(Target& target, const NamedArguments& arguments);
    using Write = void (*)(Target& target, const NamedArguments& indexesAndValue);

    TextView name;
    VARTYPE type = VT_EMPTY;
    /// Of a method and of a property that can be read.
    Read read = nullptr;
    Write write = nullptr;
    bool isMethod = false;
    std::size_t leastArguments = 0;
    std::size_t mostArguments = 0;

    static constexpr NamedRow property(TextView name, VARTYPE type, Read read, Write write = nullptr) {
        return {name, type, read, write};
    }
    static constexpr NamedRow indexedProperty(TextView name, VARTYPE type, std::size_t least, std::size_t most,
                                              Read read, Write write = nullptr) {
        return {name, type, read, write, false, least, most};
    }
    static constexpr NamedRow method(TextView name, std::size_t least, std::size_t most, Read call,
                                     VARTYPE type = VT_EMPTY) {
        return {name, type, call, nullptr, true, least, most};
    }
};

/// What callers may do with the member of a row.
template <class Target>
NamedMember memberIn(const NamedRow<Target>& row) {
    const bool isRead = row.read != nullptr && !row.isMethod;
    return {row.name, row.type, row.isMethod, isRead, row.write != nullptr, row.leastArguments, row.mostArguments};
}

/// The number of the row with this name, its place from 1; DISPID_UNKNOWN when there is none.
template <class Target>
DISPID idIn(std::span<const NamedRow<Target>> table, TextView name) {
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&](const auto& candidate) { return equalsIgnoringCase(candidate.name, name); });
    return row != table.end() ? static_cast<DISPID>(row - table.begin() + 1) : DISPID_UNKNOWN;
}

/// The row of a number; null when it is none of the table.
template <class Row>
const Row* rowAt(std::span<const Row> table, DISPID id) {
    const bool isInside = id > 0 && static_cast<std::size_t>(id) <= table.size();
    return isInside ? &table[static_cast<std::size_t>(id) - 1] : nullptr;
}

}  // namespace quorvel::host
