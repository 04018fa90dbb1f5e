#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "data/data_file.h"
#include "data/references.h"
#include "sample_styles.h"
#include "text/text_io.h"
#include "writing/citation_writer.h"

namespace sample {
namespace {

struct Example {
    std::wstring style;
    /// list, note or citation
    std::wstring form;
    int line;
    std::wstring id;
    std::wstring manual;
    /// Empty: the same as the manual's.
    std::wstring ours;
    std::wstring reason;
};

std::vector<Example> readExamples() {
    std::vector<Example> examples;
    std::wstring style;
    std::wstring form;
    forEachLine(MANUAL_EXAMPLES, [&](std::wstring_view text, int number) {
        LineReader line(text);
        const auto rest = [&](std::wstring_view key) { return std::wstring(trimmed(text.substr(key.size()))); };
        if (text.empty() || text.front() == L'#') return;
        if (line.take(L'[')) {
            style = line.word();
            form = line.word();
        } else if (examples.empty() || !examples.back().manual.empty()) {
            if (text.starts_with(L"ours:")) {
                examples.back().ours = rest(L"ours:");
            } else if (text.starts_with(L"reason:")) {
                examples.back().reason = rest(L"reason:");
            } else {
                examples.push_back({style, form, number, line.word(), L"", L"", L""});
            }
        } else {
            examples.back().manual = text;
        }
    });
    return examples;
}

/// The text with its italics between asterisks.
std::wstring withItalics(const FormattedText& text) {
    std::wstring result;
    for (const Phrase& phrase : text.phrases()) {
        result += phrase.font == kItalic ? L"*" + phrase.text + L"*" : phrase.text;
    }
    return result;
}

using ManualExamples = SampleStyles;

TEST_F(ManualExamples, ComeOutAsTheManualsHaveThemOrDifferForAReason) {
    const std::vector<Reference> references = readReferences(sampleData(L"references.txt"));
    std::map<std::wstring, int> counts;
    int outputs = 0;
    int differences = 0;
    for (const Example& example : readExamples()) {
        const auto found = std::find_if(references.begin(), references.end(), [&](const Reference& reference) {
            return reference.text(L"id") == example.id;
        });
        ASSERT_NE(found, references.end()) << toUtf8(example.id);
        const auto sink = makeObject<FormattedText>();
        if (example.form == L"citation") {
            CitationWriter(LateBoundObject::create(L"QuorvelTemplate.Main2"), sampleStyle(example.style))
                .write(*found, references, true, *sink);
        } else {
            writer(example.style).write(*found, example.form == L"note" ? Form::kNote : Form::kList, *sink);
        }
        const std::wstring expected = example.ours.empty() ? example.manual : example.ours;
        EXPECT_EQ(toUtf8(withItalics(*sink)), toUtf8(expected)) << "line " << example.line;
        // Where they agree there is nothing to explain.
        EXPECT_NE(example.ours, example.manual) << "line " << example.line;
        EXPECT_EQ(example.ours.empty(), example.reason.empty()) << "line " << example.line;
        ++counts[example.style + L" " + example.form];
        ++outputs;
        if (!example.ours.empty()) ++differences;
    }
    for (const wchar_t* style : {L"mla", L"apa", L"turabian", L"ama"}) {
        EXPECT_GE(counts[std::wstring(style) + L" list"], 12) << toUtf8(style);
    }
    EXPECT_GE(counts[L"turabian note"], 12);
    EXPECT_GE(outputs, 160);
    EXPECT_LE(differences, 8);
}

}  // namespace
}  // namespace sample
