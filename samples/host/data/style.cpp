#include "data/style.h"

#include <algorithm>
#include <functional>
#include <optional>

#include "data/data_file.h"

namespace sample {

namespace {

/// The options of short citations stand under this name.
constexpr const wchar_t* kCitation = L"citation";
/// Elements that write in several fonts: titles, newspapers, editions, volumes and series, issues, refers-to, media.
constexpr std::int16_t kElementsWithFonts[] = {1, 2, 4, 8, 10, 11, 12, 16};

/// Begins a source that is no field but a text of the style's own.
constexpr std::wstring_view kSays = L"says";

/// Those of the citation template's slots that it fills with fonts.
constexpr std::wstring_view kCitationSlotsWithFonts[] = {L"name", L"title"};

constexpr struct {
    const wchar_t* name;
    ListOrder order;
} kOrders[] = {
    {L"author and title", ListOrder::kByTitle},
    {L"author and year", ListOrder::kByYear},
    {L"citation", ListOrder::kAsCited},
};

Variant plainValue(LineReader& line) {
    if (const std::optional<std::wstring> text = line.text()) return Variant(*text);
    const std::wstring word = line.word();
    if (word == L"true") return Variant(true);
    if (word == L"false") return Variant(false);
    const std::size_t digits = word.front() == L'-' ? 1 : 0;
    const bool isNumber =
        word.size() > digits && word.size() < 9 && word.find_first_not_of(L"0123456789", digits) == std::wstring::npos;
    if (!isNumber) {
        throw Fault{L"\"" + word + L"\" is neither true, false nor a number; texts stand in quotation marks"};
    }
    return Variant(static_cast<std::int32_t>(std::stol(word)));
}

Variant listValue(LineReader& line) {
    std::vector<Variant> values;
    if (!line.take(L']')) {
        do {
            values.push_back(plainValue(line));
        } while (line.take(L','));
        if (!line.take(L']')) throw Fault{L"the closing bracket is missing"};
    }
    return Variant::array(values);
}

void need(LineReader& line, wchar_t character) {
    if (!line.take(character)) throw Fault{std::wstring(L"there is no ") + character};
}

/// A part of the file under a heading in brackets: "[note journal magazine]".
struct Section {
    std::wstring what;
    std::vector<std::wstring> names;
};

class StyleReader {
public:
    Style read(const std::filesystem::path& file) {
        forEachLine(file, [this](std::wstring_view text, int number) {
            LineReader line(text);
            if (!line.atEnd()) readLine(line, number);
        });
        if (mStyle.name.empty()) throwFault(file, 0, L"style.name is missing");
        try {
            finish();
        } catch (const LayoutFault& fault) {
            throwFault(file, fault.line, fault.words);
        }
        return std::move(mStyle);
    }

private:
    using Rows = std::map<std::wstring, std::vector<LayoutRow>>;

    void readLine(LineReader& line, int number) {
        const bool isHeading = line.take(L'[');
        if (isHeading) {
            readHeading(line);
        } else if (mSection.what.empty()) {
            readOption(line);
        } else if (mSection.what == L"element") {
            mStyle.elements[mSection.names.front()].options.push_back(option(line));
        } else if (mSection.what == L"words") {
            const std::wstring text = line.neededText();
            need(line, L'=');
            Words& words = mStyle.words[findField(mSection.names.front())][text];
            words.list = line.neededText();
            words.note = line.text().value_or(words.list);
        } else if (mSection.what == L"slots") {
            readSources(line);
        } else {
            readRow(line, number);
        }
        line.end();
    }

    void readHeading(LineReader& line) {
        mSection = {line.word(), {}};
        if (mSection.what == L"element") {
            const std::wstring variant = line.word();
            need(line, L'=');
            const std::wstring base = line.word();
            if (!isElement(base)) throw Fault{L"there is no element named " + base};
            mStyle.elements[variant].base = base;
            mSection.names = {variant};
            need(line, L']');
            return;
        }
        while (!line.take(L']')) mSection.names.push_back(line.word());
        const bool isLayout = rowsOf(mSection.what) != nullptr;
        if (!isLayout && mSection.what != L"slots" && mSection.what != L"words") {
            throw Fault{L"there is no section named " + mSection.what};
        }
        if (mSection.what == L"words" && (mSection.names.size() != 1 || findField(mSection.names.front()) == nullptr)) {
            throw Fault{L"one field is to be named"};
        }
        const bool hasNoKind = mSection.what == L"citation" || (mSection.what == L"slots" && mSection.names.empty());
        if (hasNoKind) mSection.names = {L""};
        if (mSection.names.empty()) throw Fault{L"the kind of reference is missing"};
    }

    void readOption(LineReader& line) {
        const std::wstring element = line.word();
        const std::size_t dot = element.find(L'.');
        if (dot == std::wstring::npos) throw Fault{L"the name is not of the form element.option"};
        const std::wstring name = element.substr(0, dot);
        if (name != L"style" && name != kCitation && !isElement(name))
            throw Fault{L"there is no element named " + name};
        StyleOption read = optionNamed(element.substr(dot + 1), line);
        if (name == L"style") {
            describeStyle(read);
        } else {
            mStyle.elements[name].options.push_back(std::move(read));
        }
    }

    static StyleOption option(LineReader& line) { return optionNamed(line.word(), line); }

    static StyleOption optionNamed(std::wstring name, LineReader& line) {
        StyleOption option;
        option.name = std::move(name);
        if (!line.take(L'=')) throw Fault{L"there is no = after the name"};
        if (line.isNext(L'@')) {
            option.valueElement = line.word().substr(1);
            if (!isElement(option.valueElement)) throw Fault{L"there is no element named " + option.valueElement};
        } else {
            option.value = line.take(L'[') ? listValue(line) : plainValue(line);
        }
        return option;
    }

    void describeStyle(const StyleOption& option) {
        if (option.name == L"name") {
            mStyle.name = textOf(option.value);
        } else if (option.name == L"manual") {
            mStyle.manual = textOf(option.value);
        } else if (option.name == L"sameAuthor") {
            mStyle.sameAuthor = textOf(option.value);
        } else if (option.name == L"blankStrings") {
            mStyle.blankStrings = textOf(option.value);
        } else if (option.name == L"order") {
            const auto* found = std::find_if(std::begin(kOrders), std::end(kOrders),
                                             [&](const auto& known) { return textOf(option.value) == known.name; });
            if (found == std::end(kOrders)) throw Fault{L"there is no such order"};
            mStyle.order = found->order;
        } else {
            throw Fault{L"a style has no " + option.name};
        }
    }

    // author = author | editor with-role unless container | title as heading type "Article" italic "({})"
    // publisher = says "Author" if publisher=author | publisher | says "n.p."
    void readSources(LineReader& line) {
        const std::wstring slot = line.word();
        need(line, L'=');
        std::vector<SlotSource> sources;
        do {
            const std::wstring name = line.word();
            SlotSource source = name == kSays ? SlotSource{} : sourceOf(name);
            if (name == kSays) source.pattern = line.neededText();
            while (!line.atEnd() && !line.isNext(L'|')) {
                if (line.isNext(L'"')) {
                    source.pattern = pattern(line, source);
                    continue;
                }
                const std::wstring word = line.word();
                if (word == L"as") {
                    source.element = line.word();
                    const auto found = mStyle.elements.find(source.element);
                    if (found == mStyle.elements.end()) {
                        throw Fault{L"there is no element named " + source.element};
                    }
                    const std::wstring& base = found->second.base.empty() ? source.element : found->second.base;
                    if (source.field == nullptr || base != source.field->element) source.elementCode = codeOf(base);
                } else if (word == L"type") {
                    source.secondaryText = line.neededText();
                } else if (word == L"with-role") {
                    source.withRole = true;
                } else if (word == L"in-note-form") {
                    source.inNoteForm = true;
                } else if (word == L"lists-only") {
                    source.inNotes = false;
                } else if (word == L"notes-only") {
                    source.inLists = false;
                } else if (word == L"if" || word == L"unless") {
                    source.conditions.push_back(condition(line, word == L"if"));
                } else if (word == L"as-it-stands") {
                    source.elementCode = kNoElement;
                } else if (word == L"italic") {
                    source.font = kItalic;
                } else if (word == L"notes") {
                    source.notePattern = pattern(line, source);
                } else {
                    throw Fault{L"\"" + word + L"\" says nothing of a slot"};
                }
            }
            sources.push_back(std::move(source));
        } while (line.take(L'|'));
        for (const std::wstring& kind : mSection.names) mSources[kind][slot] = sources;
    }

    // medium="Print", publisher=author, issue~"suppl"
    static SourceCondition condition(LineReader& line, bool holds) {
        SourceCondition condition;
        condition.field = fieldNamed(line.word());
        condition.holds = holds;
        condition.isWhole = !line.take(L'~');
        if (!condition.isWhole) {
            condition.text = line.neededText();
        } else if (line.take(L'=')) {
            if (const std::optional<std::wstring> text = line.text()) {
                condition.text = *text;
            } else {
                condition.sameAs = fieldNamed(line.word());
            }
        }
        return condition;
    }

    static std::wstring pattern(LineReader& line, const SlotSource& source) {
        std::wstring text = line.neededText();
        const bool needsText = source.field != nullptr && text.find(kPatternText) == std::wstring::npos;
        if (needsText) throw Fault{L"there is no {} in the pattern"};
        return text;
    }

    static const Field* fieldNamed(const std::wstring& name) {
        const Field* field = findField(name);
        if (field == nullptr) throw Fault{L"there is no field named " + name};
        return field;
    }

    static SlotSource sourceOf(const std::wstring& name) {
        SlotSource source;
        source.field = fieldNamed(name);
        source.element = source.field->element;
        source.elementCode = source.field->elementCode;
        return source;
    }

    // volume  when "medium=Web"  issue "."  other ", "  last "."
    void readRow(LineReader& line, int number) {
        LayoutRow row;
        row.line = number;
        row.slot = line.word();
        while (!line.atEnd()) {
            const std::wstring next = line.word();
            if (next == L"when") {
                const std::optional<std::wstring> condition = line.text();
                row.condition = condition ? *condition : line.word();
            } else if (!row.texts.emplace(next, line.neededText()).second) {
                throw Fault{next + L" stands here twice"};
            }
        }
        for (const std::wstring& kind : mSection.names) (*rowsOf(mSection.what))[kind].push_back(row);
    }

    Rows* rowsOf(const std::wstring& section) {
        if (section == L"list") return &mLists;
        if (section == L"note") return &mNotes;
        return section == L"citation" ? &mCitation : nullptr;
    }

    void finish() {
        for (const auto& [kind, rows] : mLists) mStyle.layouts[kind] = withSources(kind, layoutOf(rows, mNotes[kind]));
        mStyle.citation = layoutOf(mCitation[L""], {});
        for (Slot& slot : mStyle.citation.slots) {
            const auto* formatted = std::end(kCitationSlotsWithFonts);
            slot.isFormatted = std::find(std::begin(kCitationSlotsWithFonts), formatted, slot.name) != formatted;
        }
        mStyle.hasNotes = !mNotes.empty() && !mNotes.begin()->second.empty();
    }

    Layout withSources(const std::wstring& kind, Layout layout) {
        for (Slot& slot : layout.slots) {
            slot.sources = sources(kind, slot.name);
            slot.isFormatted = std::any_of(slot.sources.begin(), slot.sources.end(), [](const SlotSource& source) {
                return source.font != kPlain || std::find(std::begin(kElementsWithFonts), std::end(kElementsWithFonts),
                                                          source.elementCode) != std::end(kElementsWithFonts);
            });
        }
        return layout;
    }

    /// What the kind says of the slot, what the style says of it, or the field of its name.
    std::vector<SlotSource> sources(const std::wstring& kind, const std::wstring& slot) {
        for (const std::wstring& which : {kind, std::wstring()}) {
            const auto found = mSources[which].find(slot);
            if (found != mSources[which].end()) return found->second;
        }
        if (findField(slot) == nullptr) throw LayoutFault{0, L"nothing says what stands in the slot " + slot};
        return {sourceOf(slot)};
    }

    Style mStyle;
    Section mSection;
    std::map<std::wstring, std::map<std::wstring, std::vector<SlotSource>>> mSources;
    Rows mLists;
    Rows mNotes;
    Rows mCitation;
};

}  // namespace

const std::wstring& Style::wordsFor(const Field& field, const std::wstring& text, bool isFootnote) const {
    const auto known = words.find(&field);
    if (known == words.end()) return text;
    const auto found = known->second.find(text);
    if (found == known->second.end()) return text;
    return isFootnote ? found->second.note : found->second.list;
}

std::wstring Style::textBehind(const Field& field, const std::wstring& printed) const {
    const auto known = words.find(&field);
    if (known == words.end()) return printed;
    for (const auto& [text, theWords] : known->second) {
        if (theWords.list == printed) return text;
    }
    return printed;
}

std::vector<StyleOption> Style::optionsOf(const std::wstring& element) const {
    const auto found = elements.find(element);
    if (found == elements.end()) return {};
    if (found->second.base.empty()) return found->second.options;
    std::vector<StyleOption> options = optionsOf(found->second.base);
    for (const StyleOption& own : found->second.options) {
        std::erase_if(options, [&](const StyleOption& option) { return option.name == own.name; });
        options.push_back(own);
    }
    return options;
}

Style readStyle(const std::filesystem::path& file) {
    return StyleReader().read(file);
}

}  // namespace sample
