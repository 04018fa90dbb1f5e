#include "host/com/dispatch_table.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "core/procedure.h"
#include "host/com/arguments.h"
#include "host/com/automation_error.h"
#include "host/com/type_library.h"

namespace quorvel::host {

namespace {

struct IidOrder {
    bool operator()(const IID& left, const IID& right) const { return memcmp(&left, &right, sizeof(IID)) < 0; }
};

struct Tables {
    std::mutex mutex;
    std::map<IID, std::shared_ptr<const DispatchTable>, IidOrder> byInterface;
};

Tables& tables() {
    static Tables instance;
    return instance;
}

/// The type that a value travels in, without the pointers around it.
VARTYPE valueType(const TYPEDESC& description) {
    const TYPEDESC* type = &description;
    while (type->vt == VT_PTR) {
        type = type->lptdesc;
    }
    // The only types of the library's interfaces that have a description of their own are objects.
    return type->vt == VT_USERDEFINED ? static_cast<VARTYPE>(VT_DISPATCH) : type->vt;
}

bool isPointerTo(const TYPEDESC& description) {
    if (description.vt != VT_PTR) {
        return false;
    }
    // A pointer to an interface is the object itself.
    const TYPEDESC& target = *description.lptdesc;
    return target.vt != VT_USERDEFINED;
}

/// The name of a member, or of the interface itself.
Text documentedName(ITypeInfo* info, MEMBERID member) {
    BSTR name = nullptr;
    info->GetDocumentation(member, &name, nullptr, nullptr, nullptr);
    Text result(view(name));
    SysFreeString(name);
    return result;
}

/// The names of a member's parameters. A property's new value has none: what is found there is another's.
std::vector<Text> parameterNames(ITypeInfo* info, const FUNCDESC& function) {
    std::vector<BSTR> found(static_cast<std::size_t>(function.cParams) + 1, nullptr);
    UINT count = 0;
    info->GetNames(function.memid, found.data(), static_cast<UINT>(found.size()), &count);
    std::vector<Text> names;
    for (std::size_t i = 1; i < found.size(); ++i) {
        const bool isNewValue =
            function.invkind != INVOKE_FUNC && function.invkind != INVOKE_PROPERTYGET && i + 1 == found.size();
        names.emplace_back(i < count && !isNewValue ? view(found[i]) : TextView(u"the new value"));
    }
    for (const BSTR name : found) {
        SysFreeString(name);
    }
    return names;
}

/// "OutputTemplateYear" for _OutputTemplateYear.
Text classNameOf(ITypeInfo* info) {
    Text name = documentedName(info, MEMBERID_NIL);
    removePrefix(name, u"_");
    return name;
}

/// "Supports[Get]" for the property Supports.
Text procedureName(ITypeInfo* info, const FUNCDESC& function) {
    const TextView suffix = function.invkind == INVOKE_PROPERTYGET   ? TextView(u"[Get]")
                            : function.invkind == INVOKE_PROPERTYPUT ? TextView(u"[Let]")
                                                                     : TextView();
    return documentedName(info, function.memid).append(suffix);
}

ComPtr<ITypeInfo> typeInfoOf(REFIID iid) {
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(loadTypeLibrary(library))) {
        library->GetTypeInfoOfGuid(iid, info.receive());
    }
    return info;
}

/// The description of a dual interface as its vtable has it, with results as last parameters.
ComPtr<ITypeInfo> vtableInfoOf(ITypeInfo* dispatchInfo) {
    constexpr UINT kOtherFace = static_cast<UINT>(-1);
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(dispatchInfo->GetRefTypeOfImplType(kOtherFace, &reference))) {
        dispatchInfo->GetRefTypeInfo(reference, info.receive());
    }
    return info;
}

bool isOptional(const PARAMDESC& description) {
    return (description.wParamFlags & (PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT)) != 0;
}

void copyDefault(const PARAMDESC& description, Variant& defaultValue) {
    if ((description.wParamFlags & PARAMFLAG_FHASDEFAULT) != 0 && description.pparamdescex != nullptr) {
        VariantCopy(&defaultValue, &description.pparamdescex->varDefaultValue);
    }
}

bool isNull(const VARIANT& value) {
    return value.vt == VT_EMPTY || value.vt == VT_NULL;
}

/// The empty value of a type: False, 0, "", Nothing.
void makeEmpty(VARTYPE type, Variant& value) {
    value = Variant();
    value.vt = type;
    value.llVal = 0;
    if (type == VT_VARIANT) {
        value.vt = VT_ERROR;
        value.scode = DISP_E_PARAMNOTFOUND;
    }
}

/// One argument in its declared type; DISP_E_TYPEMISMATCH and its like when it has no such value.
HRESULT bring(const VARIANT& argument, VARTYPE type, Variant& value) {
    const VARIANT& direct = dereferenced(argument);
    if (type == VT_VARIANT) {
        // The adapter sees what the caller has, arrays by reference included.
        value = Variant();
        static_cast<VARIANT&>(value) = direct;
        if ((direct.vt & VT_BYREF) == 0) {
            value.vt = VT_EMPTY;
            return VariantCopy(&value, const_cast<VARIANT*>(&direct));
        }
        return S_OK;
    }
    return convert(direct, type, value);
}

}  // namespace

/// One late-bound call: the arguments in their declared types, and the way back for those that the
/// caller passed by reference.
class DispatchTable::Call {
public:
    Call(const Member& member, const DISPPARAMS& parameters)
        : mMember(member), mSources(member.parameters.size()), mValues(member.parameters.size()) {
        assignSources(parameters);
    }

    /// The arguments that are missing and not optional; empty when there are none.
    Text lackedArguments() const {
        Text lacked;
        for (std::size_t i = 0; i < mValues.size(); ++i) {
            if (mSources[i] == nullptr && !mMember.parameters[i].isOptional) {
                lacked += concatenate({lacked.empty() ? TextView() : TextView(u"; "), nameOfArgument(i)});
            }
        }
        return lacked;
    }
    /// Whether an argument was left over that no parameter takes.
    bool hasSurplus() const { return mHasSurplus; }
    /// The argument that `bringArguments` failed at; empty when it did not.
    Text unfitArgument() const { return mUnfit < mValues.size() ? nameOfArgument(mUnfit) : Text(); }

    HRESULT bringArguments() {
        for (std::size_t i = 0; i < mValues.size(); ++i) {
            const Parameter& declared = mMember.parameters[i];
            HRESULT outcome = S_OK;
            if (mSources[i] != nullptr && !isNull(dereferenced(*mSources[i]))) {
                outcome = bring(*mSources[i], declared.type, mValues[i]);
            } else if (mSources[i] == nullptr && declared.defaultValue.vt != VT_EMPTY) {
                outcome = convert(declared.defaultValue, declared.type, mValues[i]);
            } else {
                makeEmpty(declared.type, mValues[i]);
            }
            if (FAILED(outcome)) {
                mUnfit = i;
                return outcome;
            }
        }
        return S_OK;
    }

    HRESULT run(IDispatch* object, Variant& result) {
        const bool hasResult = mMember.resultType != VT_VOID;
        const std::size_t count = mValues.size() + (hasResult ? 1 : 0);
        std::vector<VARIANTARG> arguments(count);
        std::vector<VARIANTARG*> pointers(count);
        std::vector<VARTYPE> types(count);
        const auto pass = [&](std::size_t i, VARIANT& value, VARTYPE type, bool isByReference) {
            if (isByReference) {
                arguments[i].vt = static_cast<VARTYPE>(VT_BYREF | type);
                arguments[i].byref = type == VT_VARIANT ? static_cast<void*>(&value) : static_cast<void*>(&value.llVal);
            } else {
                arguments[i] = value;
            }
            types[i] = isByReference ? arguments[i].vt : type;
            pointers[i] = &arguments[i];
        };
        for (std::size_t i = 0; i < mValues.size(); ++i) {
            mBrought.push_back(mValues[i]);
            pass(i, mValues[i], mMember.parameters[i].type, mMember.parameters[i].isByReference);
        }
        if (hasResult) {
            makeEmpty(mMember.resultType, result);
            if (mMember.resultType == VT_VARIANT) {
                result = Variant();
            }
            pass(count - 1, result, mMember.resultType, true);
        }
        Variant returned;
        const HRESULT outcome = DispCallFunc(object, static_cast<ULONG_PTR>(mMember.vtableOffset), CC_STDCALL, VT_ERROR,
                                             static_cast<UINT>(count), types.data(), pointers.data(), &returned);
        return FAILED(outcome) ? outcome : returned.scode;
    }

    /// Gives the caller's variables what the member changed. The others keep their value and their type.
    void writeBack() {
        for (std::size_t i = 0; i < mBrought.size(); ++i) {
            if (mMember.parameters[i].isByReference && mSources[i] != nullptr && isChanged(i)) {
                writeBack(*mSources[i], mMember.parameters[i].type, mValues[i]);
            }
        }
    }

private:
    /// "argument 7, andSeparator".
    Text nameOfArgument(std::size_t i) const {
        return concatenate(
            {u"argument ", decimal(static_cast<std::int64_t>(i) + 1), u", ", mMember.parameters[i].name});
    }

    void assignSources(const DISPPARAMS& parameters) {
        // Named arguments stand first; the others follow from the last to the first. A property's new value
        // is named too.
        for (UINT i = 0; i < parameters.cNamedArgs && i < parameters.cArgs; ++i) {
            const DISPID position = parameters.rgdispidNamedArgs[i];
            const auto last = static_cast<DISPID>(mSources.size()) - 1;
            assignSource(position == DISPID_PROPERTYPUT ? last : position, parameters.rgvarg[i]);
        }
        DISPID next = 0;
        for (UINT i = parameters.cArgs; i-- > parameters.cNamedArgs;) {
            assignSource(next++, parameters.rgvarg[i]);
        }
    }

    void assignSource(DISPID position, VARIANTARG& argument) {
        const bool isTaken = position < 0 || static_cast<std::size_t>(position) >= mSources.size() ||
                             mSources[static_cast<std::size_t>(position)] != nullptr;
        mHasSurplus = mHasSurplus || isTaken;
        // A reference to nothing counts as missing.
        const VARIANT& direct = dereferenced(argument);
        if (!isTaken && !isNullReference(direct) && !isMissing(direct)) {
            mSources[static_cast<std::size_t>(position)] = &argument;
        }
    }

    bool isChanged(std::size_t i) const {
        const VARIANT& before = mBrought[i];
        const VARIANT& after = mValues[i];
        // An array is changed where it is.
        return before.vt != after.vt || before.llVal != after.llVal || (after.vt & VT_ARRAY) != 0;
    }

    static void writeBack(VARIANTARG& argument, VARTYPE type, Variant& value) {
        const VARIANT& target = dereferenced(argument);
        if (&target != &argument && (target.vt & VT_BYREF) == 0) {
            auto& variable = const_cast<VARIANT&>(target);
            if (type != VT_VARIANT || (value.vt & VT_BYREF) == 0) {
                VariantClear(&variable);
                variable = value.detach();
            }
            return;
        }
        if (type == VT_VARIANT || (target.vt & VT_BYREF) == 0) {
            return;
        }
        const auto wanted = static_cast<VARTYPE>(target.vt & ~VT_BYREF);
        Variant converted;
        if (FAILED(convert(value, wanted, converted))) {
            return;
        }
        switch (wanted) {
            case VT_BSTR:
                SysFreeString(*target.pbstrVal);
                *target.pbstrVal = converted.bstrVal;
                break;
            case VT_DISPATCH:
                if (*target.ppdispVal != nullptr) {
                    (*target.ppdispVal)->Release();
                }
                *target.ppdispVal = converted.pdispVal;
                break;
            case VT_I2:
            case VT_BOOL: *target.piVal = converted.iVal; break;
            case VT_I4:
            case VT_INT: *target.plVal = converted.lVal; break;
            case VT_R8: *target.pdblVal = converted.dblVal; break;
            default: return;
        }
        converted.detach();
    }

    const Member& mMember;
    std::vector<VARIANTARG*> mSources;
    std::vector<Variant> mValues;
    // The values as the member got them, without owning them.
    std::vector<VARIANT> mBrought;
    bool mHasSurplus = false;
    std::size_t mUnfit = SIZE_MAX;
};

DispatchTable::DispatchTable(ComPtr<ITypeInfo> dispatchInfo) : mDispatchInfo(std::move(dispatchInfo)) {}

std::shared_ptr<const DispatchTable> DispatchTable::of(REFIID iid) {
    Tables& all = tables();
    const std::scoped_lock lock(all.mutex);
    std::shared_ptr<const DispatchTable>& table = all.byInterface[iid];
    if (!table) {
        table = read(iid);
    }
    if (!table) {
        throw RuntimeError(ErrorNumber::CannotCreateObject);
    }
    return table;
}

void DispatchTable::releaseAll() {
    const std::scoped_lock lock(tables().mutex);
    tables().byInterface.clear();
}

std::shared_ptr<const DispatchTable> DispatchTable::read(REFIID iid) {
    ComPtr<ITypeInfo> info = typeInfoOf(iid);
    if (!info) {
        return nullptr;
    }
    const std::shared_ptr<DispatchTable> table(new DispatchTable(std::move(info)));
    return table->readMembers() ? table : nullptr;
}

bool DispatchTable::readMembers() {
    const ComPtr<ITypeInfo> info = vtableInfoOf(mDispatchInfo.get());
    TYPEATTR* attributes = nullptr;
    if (!info || FAILED(info->GetTypeAttr(&attributes))) {
        return false;
    }
    mClassName = classNameOf(info.get());
    const UINT count = attributes->cFuncs;
    info->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        FUNCDESC* function = nullptr;
        if (FAILED(info->GetFuncDesc(i, &function))) {
            return false;
        }
        Member member;
        member.id = function->memid;
        member.kind = function->invkind;
        member.procedure = procedureName(info.get(), *function);
        member.vtableOffset = static_cast<std::size_t>(function->oVft);
        std::vector<Text> names = parameterNames(info.get(), *function);
        for (SHORT p = 0; p < function->cParams; ++p) {
            const ELEMDESC& element = function->lprgelemdescParam[p];
            if ((element.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0) {
                member.resultType = valueType(element.tdesc);
                continue;
            }
            Parameter parameter;
            parameter.name = std::move(names[static_cast<std::size_t>(p)]);
            parameter.type = valueType(element.tdesc);
            parameter.isByReference = isPointerTo(element.tdesc);
            parameter.isOptional = isOptional(element.paramdesc);
            copyDefault(element.paramdesc, parameter.defaultValue);
            member.parameters.push_back(std::move(parameter));
        }
        info->ReleaseFuncDesc(function);
        mMembers.push_back(std::move(member));
    }
    return true;
}

const DispatchTable::Member* DispatchTable::find(DISPID id, WORD flags) const {
    if ((flags & DISPATCH_PROPERTYPUTREF) != 0) {
        flags |= DISPATCH_PROPERTYPUT;
    }
    // A script calls a property with arguments as if it were a method. Reading a method does not run it.
    if ((flags & DISPATCH_METHOD) != 0) {
        flags |= DISPATCH_PROPERTYGET;
    }
    const auto member = std::find_if(mMembers.begin(), mMembers.end(), [&](const Member& candidate) {
        return candidate.id == id && (candidate.kind & flags) != 0;
    });
    return member != mMembers.end() ? &*member : nullptr;
}

HRESULT DispatchTable::invoke(IDispatch* object, DISPID id, WORD flags, const DISPPARAMS& parameters,
                              VARIANT* result) const {
    const Member* member = find(id, flags);
    const bool isHollow = (parameters.cArgs > 0 && parameters.rgvarg == nullptr) ||
                          (parameters.cNamedArgs > 0 && parameters.rgdispidNamedArgs == nullptr);
    if (member == nullptr || isHollow) {
        return DISP_E_MEMBERNOTFOUND;
    }
    Variant value;
    makeEmpty(member->resultType == VT_VOID || member->resultType == VT_VARIANT ? static_cast<VARTYPE>(VT_EMPTY)
                                                                                : member->resultType,
              value);
    const auto fail = [&](ErrorNumber number, TextView subject) {
        procedure(StandardModule(Name(mClassName)), Name(member->procedure), kNoParameters,
                  [&] { throw RuntimeError(number, descriptionOf(number, subject)); });
    };
    Call call(*member, parameters);
    if (call.hasSurplus()) {
        fail(ErrorNumber::WrongNumberOfArguments,
             concatenate({decimal(parameters.cArgs), u" given, ",
                          decimal(static_cast<std::int64_t>(member->parameters.size())), u" taken"}));
    }
    if (const Text lacked = call.lackedArguments(); !lacked.empty()) {
        fail(ErrorNumber::ArgumentNotOptional, lacked);
    }
    // To read an argument may run the host's code already.
    HRESULT outcome = VBWPROTECTOR::ofThisApartment().isTooDeep() ? kStackOverflow : call.bringArguments();
    if (SUCCEEDED(outcome)) {
        outcome = call.run(object, value);
        call.writeBack();
    }
    if (FAILED(outcome)) {
        fail(errorNumberOf(outcome), call.unfitArgument());
    }
    if (result != nullptr) {
        *result = value.detach();
    }
    return S_OK;
}

}  // namespace quorvel::host
