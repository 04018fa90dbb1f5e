// author_accuracy FILE.tsv [--misses] [--time] [--half 0|1]
//
// How many lists of persons the author element reads exactly: every person's last name with particle,
// first names or initials, and postfix. Prints a table by printed form and group. Each list is read
// with the settings of all four styles, which must not matter; where they disagree the list counts as
// missed and is shown as such.
//
//   --misses   shows each list that is not exact
//   --time     the mean time of reading and writing a list, and of setting a style
//   --half N   only every second case, 0 or 1: to try a rule on lists that it was not made from
//   --other-forms  writes each list in every style, reads that again and shows where the persons differ

#include <ctime>
#include <map>
#include <memory>
#include <string>

#include "accuracy.h"
#include "support/author_cases.h"
#include "support/style_presets.h"

namespace {

using namespace quorvel;
using namespace quorvel::authorcases;

/// Plain text, gathered.
class TextSink final : public OutputSink {
public:
    void Add(TextView text) override { mText.append(text); }
    void Add(TextView text, std::int32_t) override { mText.append(text); }
    void addFormattedString(const OutputSink& fragment) override { mText.append(fragment.toString()); }
    OutputSinkRef Clone() const override { return std::make_shared<TextSink>(); }
    void Reset() override { mText.clear(); }
    OutputSinkRef BuildNewFormattedString() const override { return std::make_shared<TextSink>(); }
    Text toString() const override { return mText; }
    Text toRTFString() const override { return mText; }
    bool IsEmpty() const override { return mText.empty(); }
    std::int16_t removeQuoteFromLastPhrase() override { return 0; }
    void PageIndex(std::int32_t /*value*/) override {}

    const Text& text() const { return mText; }

private:
    Text mText;
};

std::shared_ptr<OutputTemplateAuthor> elementOf(const AuthorOptions& options) {
    auto element = std::make_shared<OutputTemplateAuthor>();
    element->Initialize(std::make_shared<TextSink>());
    element->Reset(options);
    return element;
}

std::vector<AuthorRecord> personsOf(const OutputTemplateAuthor& element) {
    std::vector<AuthorRecord> persons;
    for (std::int16_t i = 0; i < element.numAuthors(); ++i) {
        persons.push_back(element.person(i));
    }
    return persons;
}

std::string shown(const std::vector<AuthorRecord>& persons) {
    std::string text;
    for (const AuthorRecord& person : persons) {
        text += (text.empty() ? "" : " ; ") + utf8Of(person.lastName) + "|" + utf8Of(person.firstNames) + "|" +
                utf8Of(person.postfix);
    }
    return text;
}

using accuracy::Count;

void print(const char* name, const Count& count) {
    if (count.all > 0) {
        accuracy::print("  ", 12, name, count);
    }
}

struct Row {
    Count persons;
    Count particles;
    Count groups;
    Count all;
};

void countExact(const std::vector<Case>& cases, bool showMisses) {
    std::vector<std::shared_ptr<OutputTemplateAuthor>> elements;
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        elements.push_back(elementOf(preset.options));
    }
    std::map<std::string, Row> rows;
    for (const Case& list : cases) {
        std::vector<AuthorRecord> first;
        bool isExact = true;
        for (const auto& element : elements) {
            Text text = list.printed;
            element->Parse(text, {});
            std::vector<AuthorRecord> read = personsOf(*element);
            const bool isRight = areSamePersons(list.persons, read) && element->HasEtAl() == list.isCut;
            if (showMisses && (!isRight || (&element != &elements.front() && shown(read) != shown(first))) && isExact) {
                std::printf("%s %s: %s\n    read  %s%s\n    right %s\n", list.id.c_str(), list.form.c_str(),
                            utf8Of(list.printed).c_str(), shown(read).c_str(), element->HasEtAl() ? " et al." : "",
                            shown(list.persons).c_str());
            }
            isExact = isExact && isRight;
            if (&element == &elements.front()) {
                first = std::move(read);
            }
        }
        const Kinds kinds = kindsOf(list);
        for (Row* row : {&rows[list.form], &rows["(all)"]}) {
            row->all.add(isExact);
            (kinds.hasGroup ? row->groups : row->persons).add(isExact);
            if (kinds.hasParticle) {
                row->particles.add(isExact);
            }
        }
    }
    for (const auto& [form, row] : rows) {
        std::printf("%s\n", form.c_str());
        print("persons only", row.persons);
        print("particle", row.particles);
        print("corporate", row.groups);
        print("all", row.all);
    }
}

void otherForms(const std::vector<Case>& cases) {
    const auto presets = test::authorPresets();
    for (const test::AuthorPreset& preset : presets) {
        const auto writer = elementOf(preset.options);
        const auto reader = elementOf(preset.options);
        for (const bool isFootnote : {false, true}) {
            Count count;
            for (const Case& list : cases) {
                Text text = list.printed;
                writer->Parse(text, {});
                TextSink sink;
                const Text written = writer->toString(isFootnote, false);
                Text again = written;
                reader->Parse(again, {});
                std::vector<AuthorRecord> before = personsOf(*writer);
                const std::vector<AuthorRecord> after = personsOf(*reader);
                if (reader->HasEtAl() && before.size() > after.size()) {
                    const AuthorRecord last = before.back();
                    before.resize(after.size());
                    if (preset.options.etAlUsesElipses && !after.empty()) {
                        before.back() = last;
                    }
                }
                const bool isSame = areSamePersons(before, after);
                count.add(isSame);
                if (!isSame) {
                    std::printf("%s %s -> %s%s: %s\n    before %s\n    after  %s\n", list.id.c_str(), list.form.c_str(),
                                utf8Of(preset.name).c_str(), isFootnote ? " note" : "", utf8Of(written).c_str(),
                                shown(before).c_str(), shown(after).c_str());
                }
            }
            print((utf8Of(preset.name) + (isFootnote ? " note" : "")).c_str(), count);
        }
    }
}

/// Processor time, so that other programs on the machine do not count.
template <class Work>
double nanosecondsPerCall(int calls, Work&& work) {
    const std::clock_t start = std::clock();
    for (int i = 0; i < calls; ++i) {
        work(static_cast<std::size_t>(i));
    }
    return 1e9 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / calls;
}

void timing(const std::vector<Case>& cases) {
    constexpr int kRounds = 200;
    constexpr int kResets = 20000;
    const auto presets = test::authorPresets();
    const auto sink = std::make_shared<TextSink>();
    const int calls = kRounds * static_cast<int>(cases.size());
    for (const test::AuthorPreset& preset : presets) {
        const auto element = elementOf(preset.options);
        Text text;
        const auto parse = [&](std::size_t i) {
            text = cases[i % cases.size()].printed;
            element->Parse(text, {});
        };
        const double parsing = nanosecondsPerCall(calls, parse);
        const double both = nanosecondsPerCall(calls, [&](std::size_t i) {
            parse(i);
            sink->Reset();
            element->ToFormattedString(sink, false, false);
        });
        const double switching =
            nanosecondsPerCall(kResets, [&](std::size_t i) { element->Reset(presets[i % presets.size()].options); });
        const double making = nanosecondsPerCall(kResets, [&](std::size_t) {
            OutputTemplateAuthor fresh;
            fresh.Initialize(sink);
            fresh.Reset(preset.options);
        });
        std::printf(
            "%-9s parse %5.0f ns, parse and format %5.0f ns (%.0f lists/s), style switch %5.0f ns, new element "
            "%5.0f ns\n",
            utf8Of(preset.name).c_str(), parsing, both, 1e9 / both, switching, making);
    }
}

}  // namespace

namespace quorvel::accuracy {

const std::string_view kUsage = "author_accuracy FILE.tsv [--misses] [--time] [--half 0|1] [--other-forms]";

void run(std::istream& file, const Arguments& arguments) {
    std::vector<Case> cases = readCases(file);
    if (arguments.half >= 0) {
        std::map<std::string, int> numbers;
        std::erase_if(cases, [&](const Case& list) {
            const int number = numbers.try_emplace(list.id, static_cast<int>(numbers.size())).first->second;
            return number % 2 != arguments.half;
        });
    }
    countExact(cases, arguments.has("--misses"));
    if (arguments.has("--other-forms")) {
        otherForms(cases);
    }
    if (arguments.has("--time")) {
        timing(cases);
    }
}

}  // namespace quorvel::accuracy
