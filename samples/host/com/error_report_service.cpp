#include "com/error_report_service.h"

#include <algorithm>

#include "text/text_io.h"

namespace sample {

namespace {

constexpr std::int32_t kArrayCode = VT_ARRAY;
constexpr std::size_t kNameWidth = 36;
constexpr std::size_t kTypeWidth = 18;

struct TypeName {
    std::int32_t code;
    const wchar_t* name;
};

constexpr TypeName kTypeNames[] = {
    {VT_I2, L"Integer"},  {VT_I4, L"Long"},         {VT_R4, L"Single"},    {VT_R8, L"Double"},
    {VT_BSTR, L"String"}, {VT_DISPATCH, L"Object"}, {VT_BOOL, L"Boolean"}, {VT_VARIANT, L"Variant"},
};

std::wstring typeName(std::int32_t code) {
    const std::int32_t element = code & ~kArrayCode;
    std::wstring name = L"type " + std::to_wstring(element);
    for (const TypeName& known : kTypeNames) {
        if (known.code == element) name = known.name;
    }
    return (code & kArrayCode) != 0 ? name + L" array" : name;
}

std::wstring padded(std::wstring text, std::size_t width) {
    if (text.size() < width) text.resize(width, L' ');
    return text + L' ';
}

// What kind of object it is, where it can say so.
std::wstring objectText(IDispatch* object) {
    if (object == nullptr) return L"Nothing";
    if (DispatchObject::behind(object) != nullptr) return L"object of the host";
    ComPointer<ITypeInfo> info;
    BSTR name = nullptr;
    if (FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put())) || !info ||
        FAILED(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) {
        return L"object";
    }
    std::wstring text = L"object " + std::wstring(name, SysStringLen(name));
    SysFreeString(name);
    return text;
}

std::wstring valueText(const VARIANT& value) {
    const Variant direct = Variant::copyOf(value);
    const VARTYPE type = direct.get().vt;
    if ((type & VT_ARRAY) != 0) {
        std::wstring text = L"{";
        for (const Variant& element : elementsOf(direct)) {
            if (text.size() > 1) text += L", ";
            text += valueText(element.get());
        }
        return text + L"}";
    }
    switch (type) {
        case VT_EMPTY: return L"Empty";
        case VT_NULL: return L"Null";
        case VT_ERROR: return L"Missing";
        case VT_BSTR: return L"\"" + textOf(direct) + L"\"";
        case VT_DISPATCH:
        case VT_UNKNOWN: return objectText(objectOf(direct).get());
        default: return textOf(direct);
    }
}

}  // namespace

ErrorReportService::ErrorReportService(std::shared_ptr<std::ostream> report, Level level)
    : mReport(std::move(report)), mLevel(level) {
    addMethod(L"vbwProcIn", [this](const Arguments& arguments, VARIANT&) {
        ++mProcedures;
        if (mLevel == Level::kProcedures) {
            writeLine(std::wstring(2 * mCallStack.size(), L' ') + arguments.text(0) + arguments.text(1));
            mReport->flush();
        }
        mCallStack.push_back({arguments.text(0), arguments.has(1) ? arguments.text(1) : L""});
        return S_OK;
    });
    addMethod(L"vbwProcOut", [this](const Arguments&, VARIANT&) {
        if (!mCallStack.empty()) mCallStack.pop_back();
        return S_OK;
    });
    addMethod(L"vbwReportParameter", [](const Arguments& arguments, VARIANT& result) {
        result = Variant(arguments.text(0) + L" = " + valueText(arguments[1])).release();
        return S_OK;
    });
    addMethod(L"vbwReportVariable", [this](const Arguments& arguments, VARIANT&) {
        writeVariable(arguments.text(0), arguments[1], arguments.number(2));
        return S_OK;
    });
    addMethod(L"vbwReportToFile", [this](const Arguments& arguments, VARIANT&) {
        writeLines(arguments.text(0));
        return S_OK;
    });
    addMethod(L"vbwReportObject", [this](const Arguments& arguments, VARIANT&) {
        writeLine(L"In: " + objectText(arguments.object(0).get()));
        return S_OK;
    });
    addMethod(L"vbwBeforeDump", [this](const Arguments&, VARIANT&) {
        beginError();
        return S_OK;
    });
    addMethod(L"vbwAfterDump", [this](const Arguments&, VARIANT&) {
        mIndentation = std::max(0, mIndentation - 1);
        mReport->flush();
        return S_OK;
    });
    addMethod(L"vbwOpenDumpFile", [this](const Arguments&, VARIANT&) {
        writeCallStack();
        return S_OK;
    });
    addMethod(L"vbwCloseDumpFile", [this](const Arguments&, VARIANT&) {
        writeLine(L"");
        return S_OK;
    });
    // The library lets go of this service now. What is left on the stack would be of calls that never end.
    addMethod(L"vbwExitThread", [this](const Arguments& arguments, VARIANT&) {
        if (arguments.boolean(0)) mCallStack.clear();
        return S_OK;
    });
}

void ErrorReportService::beginError() {
    ++mErrors;
    const std::wstring heading = L"Error report " + std::to_wstring(mErrors);
    writeLine(heading);
    writeLine(std::wstring(heading.size(), L'='));
    ++mIndentation;
}

void ErrorReportService::writeCallStack() {
    writeLine(L"Call stack, the procedure that failed last:");
    std::wstring indent;
    for (const Call& call : mCallStack) {
        indent += L"  ";
        writeLine(indent + call.procedure + call.parameters);
    }
    writeLine(L"");
}

void ErrorReportService::writeVariable(const std::wstring& name, const VARIANT& value, std::int32_t typeCode) {
    const std::wstring head = padded(name, kNameWidth) + padded(typeName(typeCode), kTypeWidth);
    const Variant direct = Variant::copyOf(value);
    if ((direct.get().vt & VT_ARRAY) == 0) {
        writeLine(head + valueText(direct.get()));
        return;
    }
    const std::vector<Variant> elements = elementsOf(direct);
    writeLine(head + std::to_wstring(elements.size()) + (elements.size() == 1 ? L" element" : L" elements"));
    for (std::size_t i = 0; i < elements.size(); ++i) {
        writeLine(L"    " + padded(std::to_wstring(i), 4) + valueText(elements[i].get()));
    }
}

void ErrorReportService::writeLines(const std::wstring& text) {
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find_first_of(L"\r\n", start);
        if (end == std::wstring::npos) end = text.size();
        writeLine(text.substr(start, end - start));
        start = end + (text.compare(end, 2, L"\r\n") == 0 ? 2 : 1);
    }
}

void ErrorReportService::writeLine(const std::wstring& text) {
    if (!text.empty()) *mReport << std::string(static_cast<std::size_t>(mIndentation) * 4, ' ') << toUtf8(text);
    *mReport << "\r\n";
}

void ErrorReportService::writeSummary() {
    writeLine(std::to_wstring(mProcedures) + L" procedures were reported, " + std::to_wstring(mErrors) +
              (mErrors == 1 ? L" error." : L" errors."));
    mReport->flush();
}

}  // namespace sample
