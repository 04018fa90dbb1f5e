#pragma once

#include "host/com/automation.h"

#include <memory>
#include <vector>

#include "core/text.h"
#include "host/com/com_ptr.h"
#include "host/com/variant.h"

namespace quorvel::host {

/// What late-bound callers may call on one of our interfaces, read from the type library: the members,
/// their parameters and their places in the vtable.
class DispatchTable {
public:
    /// The table of an interface, made at its first use and kept until `releaseAll`. Error 429 when the type
    /// library cannot be loaded: an object without it would do nothing.
    static std::shared_ptr<const DispatchTable> of(REFIID iid);
    /// Lets go of all tables that no object uses.
    static void releaseAll();

    ITypeInfo* typeInfo() const { return mDispatchInfo.get(); }

    /// Calls a member with whatever arguments the caller has: by value or by reference, named or
    /// positional, null, missing, too many. An argument is brought to its declared type; a null one is the
    /// empty value, a missing one its default or the empty value. That a missing one is not optional, or
    /// that there are surplus ones, is reported, and the member runs. An argument that does not convert is
    /// a run-time error of the member, which then does not run and returns the empty value of its type. Reports say
    /// which argument it is.
    /// @return S_OK whenever the interface has the member
    HRESULT invoke(IDispatch* object, DISPID id, WORD flags, const DISPPARAMS& parameters, VARIANT* result) const;

private:
    struct Parameter {
        Text name;
        VARTYPE type = VT_EMPTY;
        bool isByReference = false;
        bool isOptional = false;
        Variant defaultValue;
    };
    struct Member {
        DISPID id = DISPID_UNKNOWN;
        INVOKEKIND kind = INVOKE_FUNC;
        /// As reports name it: "Supports[Get]".
        Text procedure;
        std::size_t vtableOffset = 0;
        VARTYPE resultType = VT_VOID;
        std::vector<Parameter> parameters;
    };
    class Call;

    explicit DispatchTable(ComPtr<ITypeInfo> dispatchInfo);
    static std::shared_ptr<const DispatchTable> read(REFIID iid);
    bool readMembers();
    const Member* find(DISPID id, WORD flags) const;

    ComPtr<ITypeInfo> mDispatchInfo;
    Text mClassName;
    std::vector<Member> mMembers;
};

}  // namespace quorvel::host
