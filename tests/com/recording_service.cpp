#include "recording_service.h"

namespace comtests {

namespace {

constexpr const wchar_t* kMembers[] = {
    L"vbwProcIn",       L"vbwProcOut",       L"vbwReportParameter", L"vbwReportVariable",
    L"vbwReportToFile", L"vbwReportObject",  L"vbwBeforeDump",      L"vbwAfterDump",
    L"vbwOpenDumpFile", L"vbwCloseDumpFile", L"vbwExitThread",
};
/// A value travels as a variant by reference, which holds the declared type; arrays are of variants.
VARTYPE typeOf(const VARIANT& value) {
    EXPECT_EQ(value.vt, VT_BYREF | VT_VARIANT);
    return value.vt == (VT_BYREF | VT_VARIANT) ? value.pvarVal->vt : value.vt;
}

constexpr std::wstring_view kEntry = L"vbwProcIn(QuorvelTemplate.";
constexpr std::wstring_view kError = L"vbwReportToFile(Run-time error ";

}  // namespace

RecordingService::RecordingService() : mObject(makeObject<DispatchObject>()) {
    for (const std::wstring member : kMembers) {
        mObject->addMethod(member, [this, member](const Arguments& arguments, VARIANT& result) -> HRESULT {
            std::vector<std::wstring> values;
            for (std::size_t i = 0; i < arguments.size(); ++i) values.push_back(shown(arguments[i]));
            mCalls.push_back(member + L"(" + joined(values, L", ") + L")");
            const bool fails = mCalls.size() == failAt;
            if (onCall) onCall(member);
            if (fails) return E_FAIL;
            if (member == L"vbwReportParameter") {
                result = Variant(values[0] + L"=" + values[1] + L":" + std::to_wstring(typeOf(arguments[1]))).release();
            } else if (member == L"vbwReportVariable") {
                const int code = arguments.number(2);
                EXPECT_EQ(typeOf(arguments[1]), (code & VT_ARRAY) != 0 ? VT_ARRAY | VT_VARIANT : code);
            } else if (member == L"vbwReportObject") {
                reportedObject = arguments.object(0).get();
            }
            return S_OK;
        });
    }
}

std::wstring RecordingService::taken() {
    std::wstring text;
    for (; mTaken < mCalls.size(); ++mTaken) {
        const std::wstring& call = mCalls[mTaken];
        if (call == L"vbwProcOut()") {
            text += L"<\n";
        } else if (call.starts_with(kEntry)) {
            std::wstring entry = call.substr(kEntry.size(), call.size() - kEntry.size() - 1);
            text += L"> " + entry.erase(entry.find(L", "), 1) + L"\n";
        } else {
            text += call + L"\n";
        }
    }
    return text;
}

std::wstring RecordingService::takenErrors() {
    std::vector<std::wstring> errors;
    for (; mTaken < mCalls.size(); ++mTaken) {
        const std::wstring& call = mCalls[mTaken];
        if (!call.starts_with(kError)) continue;
        const std::wstring number = call.substr(kError.size(), call.find(L':') - kError.size());
        const std::size_t last = call.rfind(L'.', call.rfind(L'.') - 1) + 1;
        errors.push_back(number + L" " + call.substr(last, call.size() - last - 3));
    }
    return joined(errors, L"; ");
}

}  // namespace comtests
