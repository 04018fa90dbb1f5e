#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "elements.h"
#include "references.h"
#include "styles.h"
#include "text_io.h"

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
        L"year.a=true#c\n author.b = -12 # c\ntitle.c = \" say \"\"#1\"\" \" # c\npage.d = [true, 2, \"x, ]\"]\n"
        L"title.e = @author\nyear.f = \"\"\nyear.g = []");
    const Style style = readStyle(file.path());
    EXPECT_EQ(style.name, L"S");
    ASSERT_EQ(style.options.size(), 7u);
    EXPECT_EQ(style.options[0].value.get().vt, VT_BOOL);
    EXPECT_EQ(numberOf(style.options[1].value), -12);
    EXPECT_EQ(textOf(style.options[2].value), L" say \"#1\" ");
    EXPECT_EQ(textOf(elementsOf(style.options[3].value)[2]), L"x, ]");
    EXPECT_EQ(style.options[4].valueElement, L"author");
    EXPECT_EQ(textOf(style.options[5].value), L"");
    EXPECT_TRUE(elementsOf(style.options[6].value).empty());
    EXPECT_EQ(style.optionsOf(L"year").size(), 3u);
}

TEST(Styles, FaultsAreNamedWithTheirLine) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"\nyear = true", L"line 2: the name is not of the form element.option."},
        {L"yaer.a = true", L"line 1: there is no element named yaer."},
        {L"year.a true", L"line 1: there is no = after the name."},
        {L"year.a = ", L"line 1: a name or a value is missing."},
        {L"year.a = True", L"line 1: \"True\" is neither true, false nor a number; texts stand in quotation marks."},
        {L"year.a = \"n.d.", L"line 1: the closing quotation mark is missing."},
        {L"year.a = true false", L"line 1: there is more on the line than one value."},
        {L"year.a = [1, 2", L"line 1: the closing bracket is missing."},
        {L"title.a = @autor", L"line 1: there is no element named autor."},
        {L"style.nam = \"x\"", L"line 1: a style has only a name and a manual."},
        {L"year.a = true", L"?"},
    };
    for (const auto& [text, fault] : cases) EXPECT_EQ(faultOf(text, readStyle), fault);
}

TEST(Styles, TheFourStylesGiveTheSameOptions) {
    using Names = std::map<std::wstring, std::set<std::wstring>>;
    const auto names = [](const Style& style) {
        Names result;
        for (const StyleOption& option : style.options) {
            EXPECT_TRUE(result[option.element].insert(option.name).second) << toUtf8(option.name) << " twice";
        }
        return result;
    };
    const Names first = names(readStyle(data(L"styles/mla.style")));
    EXPECT_EQ(first.at(L"year").size(), 7u);
    EXPECT_EQ(first.at(L"place").size(), 5u);
    EXPECT_EQ(first.at(L"author").size(), 23u);
    for (const wchar_t* name : kStyles) {
        EXPECT_EQ(names(readStyle(data(L"styles/" + std::wstring(name) + L".style"))), first);
    }
}

TEST(References, ElementsKeepTheirOrderAndColons) {
    const TemporaryFile file(
        L"# comment: no element\nauthor: Kuhn, Thomas S.\n title :  A: B # C \n\n\nonline: http://x.org/#y\n");
    const std::vector<Reference> references = readReferences(file.path());
    ASSERT_EQ(references.size(), 2u);
    EXPECT_EQ(references[0].elements[1].name, L"title");
    EXPECT_EQ(references[0].elements[1].text, L"A: B # C");
    EXPECT_EQ(references[0].label(), L"Kuhn, Thomas S. A: B # C");
    EXPECT_EQ(references[1].elements[0].text, L"http://x.org/#y");
    EXPECT_EQ(faultOf(L"\nautor: x", readReferences), L"line 2: there is no element named \"autor\".");
    EXPECT_EQ(faultOf(L"author", readReferences), L"line 1: there is no element named \"author\".");
    EXPECT_EQ(faultOf(L"# nothing", readReferences), L"?");
}

TEST(References, TheSampleShowsTheVariantsOfEachElement) {
    std::map<std::wstring, std::set<std::wstring>> texts;
    const std::vector<Reference> references = readReferences(data(L"references.txt"));
    EXPECT_GE(references.size(), 20u);
    for (const Reference& reference : references) {
        EXPECT_FALSE(reference.label().empty());
        for (const ReferenceElement& element : reference.elements) texts[element.name].insert(element.text);
    }
    for (const wchar_t* year :
         {L"n.d.", L"[1971?]", L"[ca. 1455]", L"[c. 1937]", L"[1588]", L"In press", L"1955-1992"}) {
        EXPECT_TRUE(texts[L"year"].contains(year)) << toUtf8(year);
    }
    for (const wchar_t* place : {L"n.p.", L"[Antwerp?]", L"[Tel Aviv]", L"Portland, OR"}) {
        EXPECT_TRUE(texts[L"place"].contains(place)) << toUtf8(place);
    }
    EXPECT_TRUE(texts[L"date-time"].contains(L"September 1, 2011"));
}

}  // namespace
}  // namespace sample
