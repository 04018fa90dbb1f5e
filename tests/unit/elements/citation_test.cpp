#include "elements/citation/citation.h"

#include "support/allocations.h"
#include "support/author_reading.h"
#include "support/element.h"
#include "support/recording_model.h"
#include "support/recording_service.h"
#include "support/style_presets.h"

namespace quorvel {
namespace {

struct Style {
    TextView name;
    AuthorOptions authors;
    TitleOptions titles;
    CitationOptions options;
};

Style styleOf(TextView name, std::string_view file) {
    const test::StyleFile& style = test::StyleFile::of(file);
    return {name, style.options("author", kAuthorOptions), style.options("title", kTitleOptions),
            style.options("citation", kCitationOptions)};
}
Style mla() {
    return styleOf(u"MLA", "mla");
}
Style apa() {
    return styleOf(u"APA", "apa");
}
Style turabian() {
    return styleOf(u"Turabian", "turabian");
}
Style ama() {
    return styleOf(u"AMA", "ama");
}

class Citation : public ReportingTest {
protected:
    Citation() {
        std::vector<Text> names;
        for (const CitationKey& key : kCitationKeys) {
            names.emplace_back(key.key);
        }
        keys = std::make_shared<NumberedKeys>(names);
    }

    void use(const Style& style) {
        title->Initialize(std::make_shared<RecordingSink>());
        title->Reset(style.titles);
        citation.Initialize(std::make_shared<RecordingSink>(), true, keys, test::authorWith(style.authors), title,
                            nullptr);
        citation.Reset(style.options);
    }
    /// "author=Kuhn|year=1970"; the others are empty.
    void setFields(TextView fields) {
        model->fields.clear();
        for (std::int16_t i = 1; i <= static_cast<std::int16_t>(std::size(kCitationKeys)); ++i) {
            model->fields[i] = Text();
        }
        for (const Text& field : split(fields, u"|")) {
            if (const TextView key = before(field, u"="); !key.empty()) {
                model->fields[keys->item(key)] = field.substr(key.size() + 1);
            }
        }
    }
    Text output(std::int16_t firstNames = 0, bool hasOtherTitles = false) {
        sink->Reset();
        citation.ToFormattedString(sink, model, firstNames, hasOtherTitles, true);
        return marked(*sink);
    }
    Text minimal(bool hasOtherTitles = false) {
        sink->Reset();
        citation.ToMinimalFormattedString(sink, model, 0, hasOtherTitles);
        return marked(*sink);
    }

    std::shared_ptr<NumberedKeys> keys;
    std::shared_ptr<OutputTemplateTitle> title = std::make_shared<OutputTemplateTitle>();
    std::shared_ptr<RecordingModel> model = std::make_shared<RecordingModel>();
    std::shared_ptr<RecordingSink> sink = std::make_shared<RecordingSink>();
    OutputTemplateCitation citation;
};

TEST_F(Citation, IsWhatTheManualsAskFor) {
    struct Case {
        TextView fields;
        TextView mla, apa, turabian, ama;
    };
    constexpr Case kCases[] = {
        {u"author=Kuhn, Thomas S.|title=The structure of scientific revolutions|year=1970|citedPage=52", u"(Kuhn 52)",
         u"(Kuhn, 1970, 52)", u"(Kuhn, _Structure of Scientific Revolutions_, 52)", u"(Kuhn, 1970, 52)"},
        {u"author=Smith, John, and Mary Jones|title=Images|year=2005|citedPage=12", u"(Smith and Jones 12)",
         u"(Smith & Jones, 2005, 12)", u"(Smith and Jones, _Images_, 12)", u"(Smith and Jones, 2005, 12)"},
        {u"author=Kernis, M. H., Cornell, D. P., Sun, C. R., Berry, A., & Harlow, T.|title=There's more|year=1993",
         u"(Kernis et al.)", u"(Kernis, Cornell, Sun, Berry, & Harlow, 1993)", u"(Kernis et al., _There's More_)",
         u"(Kernis et al., 1993)"},
        // No author: the title, in quotation marks when it is of a part; the comma goes inside them.
        {u"title=New Child Vaccine Gets Funding Boost|website=ninemsn|year=n.d.", u"(“New Child Vaccine”)",
         u"(“New Child Vaccine,” n.d.)", u"(“New Child Vaccine”)", u"(New Child Vaccine)"},
        {u"title=Voice of the Shuttle|year=2001|citedPage=3", u"(_Voice of the Shuttle_ 3)",
         u"(_Voice of the Shuttle_, 2001, 3)", u"(_Voice of the Shuttle_, 3)", u"(_Voice of the Shuttle_, 2001, 3)"},
        {u"title=It's Subpoena Time|periodical=New York Times|year=2007", u"(“It's Subpoena Time”)",
         u"(“It's Subpoena Time,” 2007)", u"(_New York Times_, “It's Subpoena Time”)", u"(_New York Times_. 2007)"},
        {u"editor=Gilman, Sander, Helen King, and Roy Porter, eds.|title=Hysteria beyond Freud",
         u"(Gilman, King, and Porter)", u"(Gilman, King, & Porter, n.d.)",
         u"(Gilman, King, and Porter, _Hysteria beyond Freud_)", u"(Gilman et al.)"},
        {u"author=Lauter, Paul, et al.|title=Heath Anthology|year=2006", u"(Lauter et al.)", u"(Lauter et al., 2006)",
         u"(Lauter et al., _Heath Anthology_)", u"(Lauter et al., 2006)"},
        // Volumes, years of all kinds.
        {u"author=Wellek, René|title=A History of Modern Criticism|year=1955|citedVolume=2|citedPage=1-10",
         u"(Wellek 2: 1-10)", u"(Wellek, 1955, Vol. 2, 1-10)", u"(Wellek, _History of Modern Criticism_, 2:1-10)",
         u"(Wellek, 1955, 2:1-10)"},
        {u"author=Wellek, René|title=A History|year=[ca. 1955]|citedVolume=Vol. 2", u"(Wellek, vol. 2)",
         u"(Wellek, ca. 1955, Vol. 2)", u"(Wellek, _History_, vol. 2)", u"(Wellek, ca. 1955, vol 2)"},
        {u"author=Freud, Sigmund|title=Dreams|year=1953|originalYear=1900", u"(Freud)", u"(Freud, 1900/1953)",
         u"(Freud, _Dreams_)", u"(Freud, 1953)"},
        {u"author=Auerbach, Jane|title=Wheel|year=In press", u"(Auerbach)", u"(Auerbach, in press)",
         u"(Auerbach, _Wheel_)", u"(Auerbach, in press)"},
        // A part of a work; what a journal centric style makes of an article.
        {u"author=Keiser, G. E.|title=Middle English Prose|subwork=St Jerome and the Brigittines|year=1984",
         u"(Keiser)", u"(Keiser, 1984)", u"(Keiser, “St Jerome”)", u"(Keiser, 1984)"},
        {u"author=Chiang, WW|title=X|periodical=JAMA|year=2004|citedVolume=291|issue=20|citedPage=2432",
         u"(Chiang 291: 2432)", u"(Chiang, 2004, Vol. 291, 2432)", u"(Chiang, “X,” 291:2432)",
         u"(_JAMA_. 2004;291(20):2432)"},
        // Communications.
        {u"author=Lutes, T. K.|degree=MD|email=True|date=April 18, 2001", u"(Lutes)",
         u"(T. K. Lutes, personal communication, April 18, 2001)",
         u"(T. K. Lutes, e-mail communication, April 18, 2001)",
         u"(TK Lutes, MD, e-mail communication, April 18, 2001)"},
        {u"author=Lutes, T. K.|personalCommunication=True", u"(Lutes)", u"(T. K. Lutes, personal communication, n.d.)",
         u"(T. K. Lutes, personal communication, n.d.)", u"(TK Lutes, personal communication, n.d.)"},
        {u"", u"", u"(n.d.)", u"", u""},
        {u"author=Strunk, William, Jr., and E. B. White|title=\u2018Style\u2019|year=1955\u20131992",
         u"(Strunk and White)", u"(Strunk & White, 1955\u20131992)", u"(Strunk and White, _\u2018Style\u2019_)",
         u"(Strunk and White, 1955\u20131992)"},
    };
    for (const Case& c : kCases) {
        setFields(c.fields);
        const TextView expected[] = {c.mla, c.apa, c.turabian, c.ama};
        const Style styles[] = {mla(), apa(), turabian(), ama()};
        for (std::size_t i = 0; i < std::size(styles); ++i) {
            use(styles[i]);
            EXPECT_EQ(output(), expected[i]) << shown(styles[i].name);
        }
    }
    EXPECT_EQ(service().errors(), std::vector<Text>());
}

TEST_F(Citation, FirstNamesTitlesAndTheMinimalFormTellWorksApart) {
    setFields(
        u"author=Frye, Northrop, Jane Patterson, Li Wei|title=The double vision: Language and meaning in "
        u"religion|year=1991|citedPage=85");
    use(mla());
    EXPECT_EQ(output(1), u"(N. Frye, Patterson, and Wei 85)");
    EXPECT_EQ(output(2), u"(Northrop Frye, Patterson, and Wei 85)");
    EXPECT_EQ(output(0, true), u"(Frye, Patterson, and Wei, _Double Vision_ 85)");
    EXPECT_EQ(output(3), u"(85)");
    EXPECT_EQ(output(3, true), u"(_Double Vision_ 85)");
    use(apa());
    // The year tells works apart.
    EXPECT_EQ(output(0, true), u"(Frye, Patterson, & Wei, 1991, 85)");
    EXPECT_EQ(output(3), u"(1991, 85)");
    EXPECT_EQ(minimal(), u"(Frye et al., 1991, 85)");
    model->fields[keys->item(u"year")] = u"1991a";
    EXPECT_EQ(minimal(), u"(Frye et al., 1991a, 85)");
    model->fields[keys->item(u"year")] = u"";
    model->fields[keys->item(u"citedPage")] = u"";
    EXPECT_EQ(output(3), u"(n.d.)");
    use(turabian());
    EXPECT_EQ(minimal(), u"(Frye, Patterson, and Wei)");
    EXPECT_EQ(minimal(true), u"(Frye, Patterson, and Wei, _Double Vision_)");
    model->fields[keys->item(u"shortTitle")] = u"Vision";
    EXPECT_EQ(citation.toString(model, 0, false), u"(Frye, Patterson, and Wei, Vision)");
    EXPECT_EQ(service().errors(), std::vector<Text>());
}

TEST_F(Citation, AWebSiteStandsAloneWhereTheHostWantsIt) {
    use(apa());
    CitationOptions options = apa().options;
    options.useWebsiteWhenNoAuthorAndDate = true;
    citation.Reset(options);
    setFields(u"title=Home|website=http://www.apa.org");
    EXPECT_EQ(output(), u"(http://www.apa.org)");
    setFields(u"title=Home|website=http://www.apa.org|year=2001");
    EXPECT_EQ(output(), u"(“Home,” 2001)");
}

TEST_F(Citation, ReadsWhatItWrites) {
    struct Case {
        TextView citation;
        TextView fields;
        TextView previous = u"";
        TextView rest = u"";
    };
    constexpr Case kCases[] = {
        {u"(Smith & Jones, 2005, p. 12)", u"author=Smith & Jones|year=2005|citedPage=p. 12"},
        {u"(Smith, Jones, & Li, 2005a)", u"author=Smith, Jones, & Li|year=2005a"},
        {u"(Wasserstein et al., n.d., para. 4)", u"author=Wasserstein et al.|year=n.d.|citedPage=para. 4"},
        {u"(Freud, 1900/1953)", u"author=Freud|originalYear=1900|year=1953"},
        {u"(Smith, 2005, 1984)", u"author=Smith|year=2005|citedPage=1984"},
        {u"(“New Child Vaccine,” n.d.)", u"subwork=New Child Vaccine|year=n.d."},
        {u"(2005, p. 12)", u"year=2005|citedPage=p. 12"},
        {u"(Smith and Jones 12)", u"author=Smith and Jones|citedPage=12"},
        {u"(Smith and Li)", u"author=Smith and Li"},
        {u"(Wellek 2: 1-10)", u"author=Wellek|citedVolume=2|citedPage=1-10"},
        {u"(Wellek, vol. 2)", u"author=Wellek|citedVolume=2"},
        {u"(Chan par. 4)", u"author=Chan|citedPage=par. 4"},
        {u"(Frye, Double Vision 85)", u"author=Frye|title=Double Vision|citedPage=85"},
        {u"Kuhn, Structure of Scientific Revolutions, 52.",
         u"author=Kuhn|title=Structure of Scientific Revolutions|citedPage=52"},
        {u"Smith, Jones, and Brown, War and Peace, 2:12, 14–15.",
         u"author=Smith, Jones, and Brown|title=War and Peace|citedVolume=2|citedPage=12, 14–15"},
        {u"King, Jr., “Letter,” 5.", u"author=King, Jr.|subwork=Letter|citedPage=5"},
        {u"Ibid., 57.", u"author=Kuhn|title=Structure|citedPage=57", u"Kuhn, Structure, 52."},
        {u"Ibid.", u"author=Kuhn|citedPage=52", u"(Kuhn 52)"},
        {u"(T. K. Lutes, personal communication, April 18, 2001)",
         u"author=T. K. Lutes|personalCommunication=True|date=April 18, 2001"},
        {u"(JAMA. 2004;291(20):2432)", u"periodical=JAMA|year=2004|citedVolume=291|issue=20|citedPage=2432"},
        {u"", u""},
        {u"()", u""},
        {u"(Smith, :12)", u"author=Smith|title=:12"},
        // As it stands in a sentence; of several works the first.
        {u"Kuhn (1970, p. 52)", u"author=Kuhn|year=1970|citedPage=p. 52"},
        {u"Smith and Jones (12).", u"author=Smith and Jones|citedPage=12"},
        {u"(Kuhn, 1970; Smith, 1990; Li, 1991)", u"author=Kuhn|year=1970", u"", u"Smith, 1990; Li, 1991"},
        {u"(“A; B,” 1970; JAMA. 2004;291(20):2432)", u"subwork=A; B|year=1970", u"", u"JAMA. 2004;291(20):2432"},
        {u"(JAMA. 2004; 291(20):2432)", u"periodical=JAMA|year=2004|citedVolume= 291|issue=20|citedPage=2432"},
        {u"(Smith; Jones, 2005)", u"author=Smith; Jones|year=2005"},
    };
    use(apa());
    for (const Case& c : kCases) {
        Text text(c.citation);
        citation.Parse(text, c.previous);
        EXPECT_EQ(text, c.rest);
        setFields(c.fields);
        const std::map<std::int16_t, Text> expected = model->fields;
        setFields(u"");
        citation.MergeFieldsWithModel(model, 0, nullptr, nullptr);
        EXPECT_EQ(model->fields, expected) << shown(c.citation);
    }
    EXPECT_EQ(service().errors(), std::vector<Text>());
}

TEST_F(Citation, MergingKeepsWhatTheModelKnows) {
    use(apa());
    Text text = u"(Smith & Jones, 2005, p. 12)";
    citation.Parse(text, {});
    EXPECT_EQ(citation.Year(), u"2005");
    setFields(u"author=Smith, John, and Mary Jones|year=n.d.|citedPage=7");
    const auto authors = test::authorWith(test::apaAuthorOptions());
    citation.MergeFieldsWithModel(model, 3, authors, nullptr);
    EXPECT_EQ(model->fields[keys->item(u"author")], u"Smith, John, and Mary Jones");
    EXPECT_EQ(model->fields[keys->item(u"year")], u"2005");
    EXPECT_EQ(model->fields[keys->item(u"citedPage")], u"p. 12");
    EXPECT_EQ(authors->numAuthors(), 0);
    setFields(u"");
    citation.MergeFieldsWithModel(model, 3, authors, nullptr);
    EXPECT_EQ(test::personsOf(*authors), u"Smith; Jones");
    // What was read is written without the model.
    citation.Year(u"2006");
    citation.ToFormattedString(sink, model, 0, false, false);
    EXPECT_EQ(sink->plain(), u"(Smith & Jones, 2006, p. 12)");
    EXPECT_EQ(service().errors(), std::vector<Text>());
}

TEST_F(Citation, ALayoutOfTheHostsTakesThePlaceOfTheOwn) {
    use(turabian());
    setFields(u"author=Kuhn, Thomas|title=The Structure of Scientific Revolutions|citedPage=52");
    citation.ResetLikeModelTemplate(4, nullptr);
    for (std::int16_t i = 0; i <= 4; ++i) {
        std::vector<Text> separators(static_cast<std::size_t>(6 - i), u", ");
        separators.front() = u"";
        separators.back() = u".";
        citation.Add(i, i < 2, u"", separators);
    }
    EXPECT_EQ(output(), u"Kuhn, _Structure of Scientific Revolutions_, 52.");
    // A callback condition holds for the slot that ends in a question.
    citation.ResetLikeModelTemplate(1, nullptr);
    citation.Add(0, true, u"", {u"", u", ", u"."});
    citation.Add(1, true, u"title=__CALLBACK_FOR_CHECKING__", {u"", u".", u"", u""});
    model->fields[keys->item(u"title")] = u"The \u201CClash\u201D of Civilizations?";
    model->fields[keys->item(u"periodical")] = u"Foreign Affairs";
    EXPECT_EQ(output(), u"Kuhn, \u201C\u2018Clash\u2019 of Civilizations?\u201D");
    // Slots that the layout does not have are left out.
    citation.ResetLikeModelTemplate(0, nullptr);
    citation.Add(0, true, u"title=__CALLBACK_FOR_CHECKING__", {u"", u".", u"", u""});
    EXPECT_EQ(output(), u"Kuhn.");
    citation.ResetLikeModelTemplate(1, nullptr);
    citation.Add(0, true, u"", {u"", u", ", u"."});
    citation.Add(1, true, u"title=__CALLBACK_FOR_CHECKING__", {u"", u".", u"", u""});
    model->fields[keys->item(u"title")] = u"Clashes";
    EXPECT_EQ(output(), u"Kuhn, \u201CClashes.\u201D");
    // The host fills a layout of its own, and the style's own comes back with the next Reset.
    class Filler final : public Implementor {
        void ToFormattedString(const OutputSinkRef&, bool, bool) override {}
        bool ToFormattedStringImpl(bool, std::vector<Text>& items, std::vector<OutputSinkRef>&, bool) override {
            items.at(0) = u"Kuhn";
            return false;
        }
    };
    citation.ResetLikeModelTemplate(0, std::make_shared<Filler>());
    citation.Add(0, false, u"", {u"See ", u"!"});
    EXPECT_EQ(output(), u"See Kuhn!");
    citation.Reset(mla().options);
    EXPECT_EQ(output(), u"(Kuhn 52)");
    EXPECT_EQ(service().errors(), std::vector<Text>());
    // A citation that begins anew holds nothing of what it was.
    const auto filler = std::make_shared<Filler>();
    citation.ResetLikeModelTemplate(0, filler);
    citation.Initialize(std::make_shared<RecordingSink>(), true, keys, nullptr, nullptr, nullptr);
    EXPECT_EQ(filler.use_count(), 1);
}

TEST_F(Citation, SurvivesWhatIsMissingOrActs) {
    OutputTemplateCitation untouched;
    untouched.Reset(apa().options);
    untouched.ToFormattedString(sink, model, 0, false, true);
    EXPECT_EQ(untouched.toString(model, 0, false), u"");
    citation.Initialize(std::make_shared<RecordingSink>(), true, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(service().errors().size(), 4u);
    service().forget();
    citation.Initialize(std::make_shared<RecordingSink>(), true, keys, nullptr, title, nullptr);
    EXPECT_EQ(service().errors().at(0).substr(0, 51), u"91: Object variable not set: authorModelOutputTempl");
    service().forget();

    use(apa());
    setFields(u"author=Kuhn, Thomas|title=Structure|year=1970|citedPage=p. 5");
    const Text whole = output();
    citation.noDateString(u"o. J.");
    Text noDate = u"(Kuhn, o. J., p. 5)";
    citation.Parse(noDate, u"");
    EXPECT_EQ(citation.Year(), u"n.d.");
    setFields(u"author=Kuhn");
    EXPECT_EQ(output(), u"(Kuhn, o. J.)");
    setFields(u"author=Kuhn, Thomas|title=Structure|year=1970|citedPage=p. 5");
    // The model may do as it likes with the citation.
    model->onRead = [&] { use(mla()); };
    output();
    model->onRead = nullptr;
    use(apa());
    EXPECT_EQ(output(), whole);
    // A model without the fields.
    model->fields.clear();
    service().forget();
    EXPECT_EQ(output(), u"");
    EXPECT_EQ(service().errors().size(), 1u);
}

TEST_F(Citation, TheWorkOfParseGrowsWithTheText) {
    struct Case {
        TextView first, repeated;
    };
    constexpr Case kCases[] = {{u"", u"1-2, "}, {u"", u"p. 1, "}, {u"Smith, ", u"12, "}, {u"aaaaaaaaaaaa", u", and b"}};
    for (const Case& c : kCases) {
        const auto bytesFor = [&](std::size_t size) {
            Text text;
            // Half of it is the first piece, if that is asked for: what is done for each piece does not look at it.
            while (c.first.size() > c.repeated.size() && text.size() < size / 2) {
                text += c.first;
            }
            text += text.empty() ? c.first : TextView();
            while (text.size() < size) {
                text += c.repeated;
            }
            const std::size_t before = test::allocatedBytes();
            citation.Parse(text, {});
            return test::allocatedBytes() - before;
        };
        // Each doubling costs twice as much; what grows with the square would not end at the last of these sizes.
        EXPECT_LT(bytesFor(200'000), bytesFor(100'000) * 5 / 2) << shown(c.repeated);
        EXPECT_GT(bytesFor(4'000'000), 0U) << shown(c.repeated);
    }
}

}  // namespace
}  // namespace quorvel
