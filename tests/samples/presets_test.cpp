#include <QuorvelPresets.h>

#include "data/fields.h"
#include "data/references.h"
#include "sample_styles.h"
#include "writing/styled_elements.h"

namespace sample {
namespace {

using namespace quorvel_presets;

/// The presets of an element, whose own elements are those of the style file.
HRESULT resetByPreset(const std::wstring& element, IDispatch* object, const wchar_t* style, IDispatch* author,
                      IDispatch* page, IDispatch* publisher) {
    if (element == L"author") return ResetAuthor(object, style);
    if (element == L"title") return ResetTitle(object, style, author);
    if (element == L"newspaper") return ResetNewspaper(object, style);
    if (element == L"publisher") return ResetPublisher(object, style);
    if (element == L"year") return ResetYear(object, style);
    if (element == L"page") return ResetPage(object, style);
    if (element == L"edition") return ResetEdition(object, style, page);
    if (element == L"multi-volume") return ResetMultiVol(object, style);
    if (element == L"issue") return ResetIssue(object, style);
    if (element == L"refers-to") return ResetRefersTo(object, style, author, page, publisher);
    if (element == L"online") return ResetOnline(object, style);
    if (element == L"place") return ResetPlace(object, style);
    if (element == L"medium") return ResetMedium(object, style);
    return element == L"date-time" ? ResetDateTime(object, style) : E_NOTIMPL;
}

TEST_F(SampleStyles, PresetsWriteWhatTheStyleFilesWrite) {
    const LateBoundObject main = LateBoundObject::create(L"QuorvelTemplate.Main2");
    const std::vector<Reference> references = readReferences(sampleData(L"references.txt"));
    std::size_t written = 0;
    for (const std::wstring name : {L"mla", L"apa", L"turabian", L"ama"}) {
        const Style style = sampleStyle(name);
        StyledElements elements(main, style);
        const auto other = [&](const wchar_t* element) {
            return elements.element(element, codeOf(element))->object.dispatch();
        };
        for (const Field& field : fields()) {
            if (field.elementCode == kNoElement || std::wstring_view(field.element).empty()) continue;
            const LateBoundObject expected = elements.element(field.element, field.elementCode)->object;
            const LateBoundObject preset(
                objectOf(main.call(L"build", {field.elementCode, makeObject<FormattedText>().get()})));
            ASSERT_EQ(resetByPreset(field.element, preset.dispatch(), style.name.c_str(), other(L"author"),
                                    other(L"page"), other(L"publisher")),
                      S_OK);
            for (const Reference& reference : references) {
                for (const bool isFootnote : {false, true}) {
                    for (const LateBoundObject* each : {&expected, &preset})
                        each->call(L"Parse", {reference.text(field)});
                    const std::wstring text = textOf(preset.call(L"toString", {isFootnote}));
                    EXPECT_EQ(text, textOf(expected.call(L"toString", {isFootnote})))
                        << testing::PrintToString(name + L" " + field.name);
                    written += text.empty() ? 0 : 1;
                }
            }
        }
        EXPECT_EQ(resetByPreset(L"year", other(L"year"), L"Chicago", nullptr, nullptr, nullptr), E_INVALIDARG);
    }
    EXPECT_GT(written, 1000U);
}

}  // namespace
}  // namespace sample
