#include "forms/common_ui_functions.h"

#include <array>

#include "core/procedure.h"
#include "forms/form.h"

namespace quorvel::forms::CommonUIFunctions {

namespace {

constexpr StandardModule kModule(u"CommonUIFunctions");

constexpr TextView kHeader =
    u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}}\\viewkind4\\uc1\\pard\\cf1\\lang4105\\f0\\fs17";
constexpr TextView kTrailer = u"}";
constexpr TextView kDocumentBegins = u"{\\rtf";

constexpr char16_t kLastAscii = 0x7F;

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

}  // namespace

void SetFormIcon(Form& form, const LateObjectRef& icon) {
    procedure(kModule, u"SetFormIcon", {{u"icon", icon}},
              [&] { form.setIcon(icon ? icon->get(u"Handle").asNumber() : 0); });
}

void PreprocessTextField(Control& box) {
    procedure(kModule, u"PreprocessTextField", kNoParameters, [&] {
        const Text text = box.text();
        const TextView trimmed = trim(text);
        if (trimmed.size() != text.size()) {
            box.setText(trimmed);
        }
    });
}

Text escaped(TextView text) {
    Text result;
    result.reserve(text.size());
    for (const char16_t unit : text) {
        if (unit == u'\\' || unit == u'{' || unit == u'}') {
            result += u'\\';
            result += unit;
        } else if (unit == u'\n') {
            result += u"\\par ";
        } else if (unit > kLastAscii) {
            // Units beyond the middle are negative numbers there.
            result += u"\\u" + Value(static_cast<std::int32_t>(static_cast<std::int16_t>(unit))).asText() + u"?";
        } else if (unit != u'\r') {
            result += unit;
        }
    }
    return result;
}

Text toRTFString(TextView rtfStr) {
    return procedure(kModule, u"toRTFString", {{u"rtfStr", rtfStr}}, [&] {
        // A digit would belong to the header's last control word.
        const TextView gap = !rtfStr.empty() && isDigit(rtfStr.front()) ? TextView(u" ") : TextView();
        return concatenate({kHeader, gap, rtfStr, kTrailer});
    });
}

Text asDocument(TextView text) {
    return startsWith(text, kDocumentBegins) ? Text(text) : toRTFString(escaped(text));
}

}  // namespace quorvel::forms::CommonUIFunctions
