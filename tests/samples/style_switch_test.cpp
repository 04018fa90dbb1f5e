#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "data/data_file.h"
#include "data/references.h"
#include "sample_styles.h"
#include "text/text_io.h"

namespace sample {
namespace {

constexpr const wchar_t* kStyles[] = {L"mla", L"apa", L"turabian", L"ama"};
// The same with initials for first names, which is all that is left behind APA and AMA.
constexpr const wchar_t* kWithInitials = L" with initials";

bool writesInitials(const std::wstring& style) {
    return style == L"apa" || style == L"ama";
}

Style withInitials(Style style) {
    for (StyleOption& option : style.elements.at(L"author").options) {
        if (option.name == L"initialsOnly") option.value = Variant(true);
    }
    return style;
}

/// What does not come out the same: "plag author mla>apa", and "mla<apa" for the way back.
std::set<std::wstring> readExceptions() {
    std::set<std::wstring> exceptions;
    forEachLine(STYLE_SWITCH_EXCEPTIONS, [&](std::wstring_view text, int) {
        LineReader line(text);
        if (line.atEnd()) return;
        std::wstring what = line.word();
        what += L" " + line.word();
        while (!line.atEnd()) {
            if (!exceptions.insert(what + L" " + line.word()).second) throw Fault{what + L" stands here twice"};
        }
    });
    return exceptions;
}

class StyleSwitch : public SampleStyles {
protected:
    StyleSwitch() {
        for (const wchar_t* style : kStyles) {
            addWriter(std::wstring(style) + kWithInitials, withInitials(sampleStyle(style)));
        }
    }

    std::wstring text(const std::wstring& style, const Reference& reference) {
        mSink->reset();
        writer(style).write(reference, Form::kList, *mSink);
        return mSink->toString();
    }

    /// Notes the fields whose text lets the reference differ from what the originals give.
    void compare(const std::wstring& way, const std::wstring& style, const Reference& original,
                 const Reference& switched) {
        const std::wstring expected = text(style, original);
        for (const Field& field : fields()) {
            if (switched.text(field) == original.text(field)) continue;
            Reference one = original;
            one.set(field, switched.text(field));
            if (text(style, one) == expected) continue;
            differences.insert(original.text(L"id") + L" " + field.name + L" " + way);
        }
    }

    /// From one style through the other, there and back.
    void switchStyles(const std::wstring& from, const std::wstring& to, const Reference& reference) {
        const bool losesNames = writesInitials(from) || writesInitials(to);
        const std::wstring suffix = losesNames ? kWithInitials : L"";
        const Reference read = writer(from).elementTexts(reference);
        compare(from + L">" + to, to + (writesInitials(from) ? suffix : L""), reference, read);
        compare(from + L"<" + to, from + suffix, reference, writer(to).elementTexts(read));
    }

    std::set<std::wstring> differences;

private:
    ComPointer<FormattedText> mSink = makeObject<FormattedText>();
};

TEST_F(StyleSwitch, TextsOfOneStyleGiveTheReferenceInAnotherAndComeBack) {
    for (const Reference& reference : readReferences(sampleData(L"references.txt"))) {
        for (const wchar_t* from : kStyles) {
            for (const wchar_t* to : kStyles) {
                if (from != to) switchStyles(from, to, reference);
            }
        }
    }
    const std::set<std::wstring> exceptions = readExceptions();
    for (const std::wstring& difference : differences) {
        EXPECT_TRUE(exceptions.contains(difference)) << "not the same: " << toUtf8(difference);
    }
    for (const std::wstring& exception : exceptions) {
        EXPECT_TRUE(differences.contains(exception)) << "no exception any more: " << toUtf8(exception);
    }
}

}  // namespace
}  // namespace sample
