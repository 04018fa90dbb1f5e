#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "data/references.h"
#include "data/style.h"
#include "text/text_io.h"

namespace sample {
namespace {

constexpr const wchar_t* kStyles[] = {L"mla", L"apa", L"turabian", L"ama"};

std::filesystem::path data(const std::wstring& name) {
    return std::filesystem::path(SAMPLE_DATA) / name;
}

/// A file that lives as long as the test.
class TemporaryFile {
public:
    explicit TemporaryFile(std::wstring_view text)
        : mPath(std::filesystem::temp_directory_path() / "sample_host_data_test.txt") {
        std::ofstream(mPath, std::ios::binary) << toUtf8(text);
    }
    ~TemporaryFile() { std::filesystem::remove(mPath); }
    const std::filesystem::path& path() const { return mPath; }

private:
    std::filesystem::path mPath;
};

template <class Read>
std::wstring faultOf(std::wstring_view text, Read read) {
    const TemporaryFile file(text);
    try {
        read(file.path());
    } catch (const ComError& error) {
        const std::size_t line = error.message.find(L"line");
        return line == std::wstring::npos ? L"?" : error.message.substr(line);
    }
    return L"";
}

TEST(Styles, ValuesKeepTheirTypes) {
    const TemporaryFile file(
        L"\uFEFFstyle.name = \"S\"\r\n# comment\r\n\r\n"
        L"year.a=true#c\n year.b = -12 # c\nyear.c = \" say \"\"#1\"\" \" # c\nyear.d = [true, 2, \"x, ]\"]\n"
        L"title.e = @author\nyear.f = \"\"\nyear.g = []\n[element old = year]\nb = 3\nh = true");
    const Style style = readStyle(file.path());
    EXPECT_EQ(style.name, L"S");
    const std::vector<StyleOption> options = style.optionsOf(L"year");
    ASSERT_EQ(options.size(), 6u);
    EXPECT_EQ(options[0].value.get().vt, VT_BOOL);
    EXPECT_EQ(numberOf(options[1].value), -12);
    EXPECT_EQ(textOf(options[2].value), L" say \"#1\" ");
    EXPECT_EQ(textOf(elementsOf(options[3].value)[2]), L"x, ]");
    EXPECT_EQ(textOf(options[4].value), L"");
    EXPECT_TRUE(elementsOf(options[5].value).empty());
    EXPECT_EQ(style.optionsOf(L"title")[0].valueElement, L"author");
    // A variant has the options of its element, its own instead of those.
    const std::vector<StyleOption> variant = style.optionsOf(L"old");
    ASSERT_EQ(variant.size(), 7u);
    EXPECT_EQ(numberOf(variant[5].value), 3);
}

TEST(Styles, ALayoutIsWhatTheModelTemplateTakes) {
    const TemporaryFile file(
        L"style.name = \"S\"\n"
        L"[slots]\nauthor = author | editor with-role\nnumber = number italic \"no. {}\"\n"
        L"[slots report]\nauthor = author\n"
        L"[list book report]\n"
        L"author  other \". \"  last \".\"\n"
        L"title   number \" (\"  last \"!\"\n"
        L"title   when \"medium=Web||DVD\"  first \"In \"  number \", \"  last \"?\"\n"
        L"number  last \").\"\n"
        L"[note book]\n"
        L"author  other \", \"  last \"\"\n"
        L"title   other \": \"  last \";\"\n"
        L"number  last \"\"\n");
    const Style style = readStyle(file.path());
    const std::vector<Slot>& book = style.layouts.at(L"book").slots;
    ASSERT_EQ(book.size(), 3u);
    using Texts = std::vector<std::wstring>;
    EXPECT_EQ(book[0].separators, (Texts{L"", L". ", L". ", L".", L"", L", ", L", ", L""}));
    // List and note, and both again under the condition; the note has none of its own.
    EXPECT_EQ(book[1].separators, (Texts{L"", L" (", L"!", L"", L": ", L";", L"In ", L", ", L"?", L"", L": ", L";"}));
    EXPECT_EQ(book[1].checkingKey, L"medium=Web||DVD");
    EXPECT_EQ(book[0].sources.size(), 2u);
    EXPECT_TRUE(book[0].sources[1].withRole);
    EXPECT_FALSE(book[0].isFormatted);
    EXPECT_TRUE(book[1].isFormatted);
    EXPECT_TRUE(book[2].isFormatted);
    const std::vector<Slot>& report = style.layouts.at(L"report").slots;
    EXPECT_EQ(report[0].sources.size(), 1u);
    EXPECT_EQ(report[0].separators.size(), 4u);
}

TEST(Styles, ASourceHasConditionsAndMayBeATextOfTheStyle) {
    const TemporaryFile file(
        L"style.name = \"S\"\n[element heading = title]\nformat = 1\n"
        L"[slots]\nplace = number as heading if number~\"x\" unless medium=\"Print\" if year=date \"({})\" | "
        L"says \"N.p.\" notes \"n.p.\" unless publisher\n"
        L"[list book]\nplace last \".\"\n");
    const Style style = readStyle(file.path());
    const std::vector<SlotSource>& sources = style.layouts.at(L"book").slots[0].sources;
    ASSERT_EQ(sources.size(), 2u);
    EXPECT_EQ(sources[0].elementCode, codeOf(L"title"));
    EXPECT_EQ(sources[0].pattern, L"({})");
    ASSERT_EQ(sources[0].conditions.size(), 3u);
    EXPECT_EQ(sources[0].conditions[0].text, L"x");
    EXPECT_FALSE(sources[0].conditions[0].isWhole);
    EXPECT_EQ(sources[0].conditions[1].text, L"Print");
    EXPECT_FALSE(sources[0].conditions[1].holds);
    EXPECT_EQ(sources[0].conditions[2].sameAs, findField(L"date"));
    EXPECT_EQ(sources[1].field, nullptr);
    EXPECT_EQ(sources[1].notePattern, L"n.p.");
    EXPECT_EQ(sources[1].conditions[0].field, findField(L"publisher"));
}

TEST(Styles, FaultsAreNamedWithTheirLine) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"\nyear = true", L"line 2: the name is not of the form element.option."},
        {L"yaer.a = true", L"line 1: there is no element named yaer."},
        {L"year.a true", L"line 1: there is no = after the name."},
        {L"year.a = ", L"line 1: a name or a value is missing."},
        {L"year.a = True", L"line 1: \"True\" is neither true, false nor a number; texts stand in quotation marks."},
        {L"year.a = \"n.d.", L"line 1: the closing quotation mark is missing."},
        {L"year.a = true false", L"line 1: there is more on the line than belongs there."},
        {L"year.a = [1, 2", L"line 1: the closing bracket is missing."},
        {L"title.a = @autor", L"line 1: there is no element named autor."},
        {L"style.nam = \"x\"", L"line 1: a style has no nam."},
        {L"[layout book]", L"line 1: there is no section named layout."},
        {L"[slots]\nauthor = autor", L"line 2: there is no field named autor."},
        {L"[slots]\nauthor = author bold", L"line 2: \"bold\" says nothing of a slot."},
        {L"[slots]\nnumber = number \"no.\"", L"line 2: there is no {} in the pattern."},
        {L"[slots]\nnumber = says italic", L"line 2: a text in quotation marks is missing."},
        {L"[slots]\nnumber = number if numbr", L"line 2: there is no field named numbr."},
        {L"style.name = \"S\"\n[list book]\nauthor last \".\"\ntitle last \".\"",
         L"line 3: what stands before title is missing."},
        {L"style.name = \"S\"\n[list book]\nauthor yaer \"\" other \"\" last \".\"\ntitle last \".\"",
         L"line 3: no slot yaer comes after author."},
        {L"style.name = \"S\"\n[list book]\ntitle last \".\"\n[note book]\nyear last \".\"",
         L"line 5: the notes have other slots than the list."},
        {L"year.a = true", L"?"},
    };
    for (const auto& [text, fault] : cases) EXPECT_EQ(faultOf(text, readStyle), fault);
}

TEST(Styles, TheFourStylesGiveTheSameOptionsAndLayouts) {
    using Names = std::map<std::wstring, std::set<std::wstring>>;
    const auto names = [](const Style& style) {
        Names result;
        for (const auto& [element, its] : style.elements) {
            if (!its.base.empty()) continue;
            for (const StyleOption& option : its.options) {
                EXPECT_TRUE(result[element].insert(option.name).second) << toUtf8(option.name) << " twice";
            }
        }
        for (const auto& [kind, layout] : style.layouts) result[L"layouts"].insert(kind);
        return result;
    };
    const Names first = names(readStyle(data(L"styles/mla.style")));
    EXPECT_EQ(first.at(L"year").size(), 7u);
    EXPECT_EQ(first.at(L"author").size(), 23u);
    for (const wchar_t* name : kStyles) {
        EXPECT_EQ(names(readStyle(data(L"styles/" + std::wstring(name) + L".style"))), first);
    }
}

TEST(References, FieldsKeepTheirColons) {
    const TemporaryFile file(
        L"# comment: no field\nid: a\nkind: book\n title :  A: B # C \n\n\nid: b\nkind: web\nurl: http://x.org/#y\n");
    const std::vector<Reference> references = readReferences(file.path());
    ASSERT_EQ(references.size(), 2u);
    EXPECT_EQ(references[0].text(L"title"), L"A: B # C");
    EXPECT_EQ(references[1].text(L"url"), L"http://x.org/#y");
    EXPECT_FALSE(references[1].has(*findField(L"title")));
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"\nautor: x", L"line 2: there is no field named \"autor\"."},
        {L"author", L"line 1: there is no field named \"author\"."},
        {L"id: a\nid: b", L"line 2: the reference has two fields named id."},
        {L"id: a\nyear: 1990\n\n", L"line 3: the reference before has no kind."},
        {L"id: a\nkind: book\n\nid: a\nkind: web", L"line 5: the reference before has no id of its own."},
        {L"# nothing", L"?"},
    };
    for (const auto& [text, fault] : cases) EXPECT_EQ(faultOf(text, readReferences), fault);
}

TEST(References, TheSampleHasEveryKind) {
    std::map<std::wstring, int> kinds;
    for (const Reference& reference : readReferences(data(L"references.txt"))) ++kinds[reference.text(L"kind")];
    const Style style = readStyle(data(L"styles/mla.style"));
    for (const auto& [kind, layout] : style.layouts) EXPECT_GT(kinds[kind], 0) << toUtf8(kind);
    EXPECT_EQ(kinds.size(), style.layouts.size());
}

}  // namespace
}  // namespace sample
