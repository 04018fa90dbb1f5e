#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/rows.h"
#include "support/shown.h"

namespace quorvel {
namespace {

TEST(AuthorForms, ReadsEachPrintedForm) {
    struct Case {
        TextView text;
        TextView persons;
    };
    const auto kCases = rows<Case>(
        u"Wegener, D. T., & Petty, R. E. => Wegener|D. T.; Petty|R. E. || "
        u"Wegener, D. T. and Petty, R. E. => Wegener|D. T.; Petty|R. E. || "
        u"Wegener,D.T.,Petty,R.E. => Wegener|D. T.; Petty|R. E. || "
        u"Wegener, Duane T., and Richard E. Petty => Wegener|Duane T.; Petty|Richard E. || "
        u"Duane T. Wegener and Richard E. Petty => Wegener|Duane T.; Petty|Richard E. || "
        u"Wegener DT, Petty RE => Wegener|D. T.; Petty|R. E. || "
        u"Wegener DT, Petty RE. => Wegener|D. T.; Petty|R. E. || "
        u"Wegener D T, Petty R E => Wegener|D. T.; Petty|R. E. || "
        u"Smith J., Jones K. B., & Brown L. => Smith|J.; Jones|K. B.; Brown|L. || "
        u"Smith, Jones, and Brown => Smith; Jones; Brown || Smith, John, and Brown => Smith|John; Brown || "
        u"e. e. cummings => cummings|e. e. || "
        u"Aad, G., et al. (ATLAS Collaboration) => Aad|G.; ATLAS Collaboration et al. || "
        u"Smith, J. (Ed.), & Jones, K. (Trans.) => Smith|J.; Jones|K. || "
        u"Penfield W Jasper H => Penfield|W.; Jasper|H. || "
        u"Wegener, Duane; Petty, Richard; García Márquez, Gabriel José => Wegener|Duane; Petty|Richard; García "
        u"Márquez|Gabriel José || "
        u"Fabian Kuhn, Nancy Lynch, and Calvin Newport => Kuhn|Fabian; Lynch|Nancy; Newport|Calvin || "
        u"Lebling, P. David, Marc S. Blank, and Timothy A. Anderson => Lebling|P. David; Blank|Marc S.; "
        u"Anderson|Timothy A. || "
        u"Smith, John, Jones, Kim, & Doe, Ann => Smith|John; Jones|Kim; Doe|Ann || Smith => Smith || "
        u"Smith & Jones => Smith; Jones || Smith, Ed => Smith|Ed || "
        u"Demers, Hendrix, et al. => Demers|Hendrix et al. || Hendrix Demers et al. => Demers|Hendrix et al. || "
        u"Thomas C. King et al => King|Thomas C. et al. || Smith J, Jones K, et al. => Smith|J.; Jones|K. et al. || "
        u"Smith J, Jones K, et al; WHO Working Group => Smith|J.; Jones|K.; WHO Working Group et al. || "
        u"Smith, John, and others => Smith|John et al. || "
        u"Adams, A., Brown, B., Cole, C., Dunn, D., Eng, E., Fox, F., . . . Zimm, Z. => Adams|A.; Brown|B.; Cole|C.; "
        u"Dunn|D.; Eng|E.; Fox|F.; Zimm|Z. et al. || "
        u"Adams, A., Brown, B., \u2026 Zimm, Z. => Adams|A.; Brown|B.; Zimm|Z. et al. || "
        u"  Smith,\u00A0John\u200B  => Smith|John");
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& c : kCases) {
            EXPECT_EQ(test::read(*author, c.text), c.persons) << shown(preset.name);
        }
    }
}

/// Where names of two words stand before a comma, what the list holds elsewhere decides.
TEST(AuthorForms, TheWholeListDecides) {
    struct Case {
        TextView text;
        TextView persons;
    };
    constexpr Case kCases[] = {
        {u"Ben Liblit, Andrew Begel, and Eve Sweetser", u"Liblit|Ben; Begel|Andrew; Sweetser|Eve"},
        {u"Al Bernanke, Martin Gertler, and Mark Watson", u"Bernanke|Al; Gertler|Martin; Watson|Mark"},
        {u"Van Bernanke, Martin Gertler, and Mark Watson", u"Bernanke|Van; Gertler|Martin; Watson|Mark"},
        {u"Van Dyke, Mary Ann, and Mark Watson", u"Van Dyke|Mary Ann; Watson|Mark"},
        {u"Darity, William, Jr., Darrick Hamilton, Mark Paul, Alan Aja, and Anne Price",
         u"Darity|William|Jr.; Hamilton|Darrick; Paul|Mark; Aja|Alan; Price|Anne"},
        {u"Jonas Schild, Robert Walter, and Maria Masuch", u"Schild|Jonas; Walter|Robert; Masuch|Maria"},
        {u"Ivan Herman, Marc S. Blank", u"Herman|Ivan; Blank|Marc S."},
        {u"Cordeiro Silva, João Pedro", u"Cordeiro Silva|João Pedro"},
        {u"de Melo, Pedro O. S. Vaz, Andrew Begel, and Eve Sweetser",
         u"de Melo|Pedro O. S. Vaz; Begel|Andrew; Sweetser|Eve"},
        {u"Smith, John, García Márquez, Gabriel José, & Doe, Ann", u"Smith|John; García Márquez|Gabriel José; Doe|Ann"},
        {u"Paul, Mark; de Sainte Marie, Christian; and Van Der Storm, Tijs",
         u"Paul|Mark; de Sainte Marie|Christian; Van Der Storm|Tijs"},
    };
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& c : kCases) {
            EXPECT_EQ(test::read(*author, c.text), c.persons) << shown(preset.name);
        }
    }
}

/// Each style's own form of the same persons, and the way back from it.
TEST(AuthorForms, WritesWhatItReadInEveryStyle) {
    struct Case {
        TextView text;
        TextView mla;
        TextView apa;
        TextView turabian;
        TextView turabianNote;
        TextView ama;
    };
    constexpr Case kCases[] = {
        {u"Wegener, Duane T., and Richard E. Petty", u"Wegener, Duane T., and Richard E. Petty",
         u"Wegener, D. T., & Petty, R. E.", u"Wegener, Duane T., and Richard E. Petty",
         u"Duane T. Wegener and Richard E. Petty", u"Wegener DT, Petty RE"},
        {u"Fromhold AT Jr, van der Meer MA, Kuik C-C", u"Fromhold, A. T., Jr., M. A. van der Meer, and C.-C. Kuik",
         u"Fromhold, A. T., Jr., van der Meer, M. A., & Kuik, C.-C.",
         u"Fromhold, A. T., Jr., M. A. van der Meer, and C.-C. Kuik",
         u"A. T. Fromhold Jr., M. A. van der Meer, and C.-C. Kuik", u"Fromhold AT Jr, van der Meer MA, Kuik CC"},
        {u"Rockefeller, John D., IV", u"Rockefeller, John D., IV", u"Rockefeller, J. D., IV",
         u"Rockefeller, John D., IV", u"John D. Rockefeller IV", u"Rockefeller JD IV"},
        {u"Simone de Beauvoir", u"Beauvoir, Simone de", u"Beauvoir, S. de", u"Beauvoir, Simone de",
         u"Simone de Beauvoir", u"de Beauvoir S"},
        {u"Ying-kui Yang", u"Yang, Ying-kui", u"Yang, Y.-K.", u"Yang, Ying-kui", u"Ying-kui Yang", u"Yang YK"},
        {u"Jean-Paul Sartre", u"Sartre, Jean-Paul", u"Sartre, J.-P.", u"Sartre, Jean-Paul", u"Jean-Paul Sartre",
         u"Sartre JP"},
        {u"Smith, J. A., & World Health Organization", u"Smith, J. A., and World Health Organization",
         u"Smith, J. A., & World Health Organization", u"Smith, J. A., and World Health Organization",
         u"J. A. Smith and World Health Organization", u"Smith JA; World Health Organization"},
        {u"National Science and Technology Committee", u"National Science and Technology Committee",
         u"National Science and Technology Committee", u"National Science and Technology Committee",
         u"National Science and Technology Committee", u"National Science and Technology Committee"},
        // Four persons: MLA and the note cut, Turabian's bibliography and APA do not.
        {u"Adams A, Brown B, Cole C, Dunn D", u"Adams, A., et al.", u"Adams, A., Brown, B., Cole, C., & Dunn, D.",
         u"Adams, A., B. Brown, C. Cole, and D. Dunn", u"A. Adams et al.", u"Adams A, Brown B, Cole C, Dunn D"},
        // Eight: APA writes six, an ellipsis and the last, AMA three and "et al."
        {u"Adams A, Brown B, Cole C, Dunn D, Eng E, Fox F, Gray G, Hill H", u"Adams, A., et al.",
         u"Adams, A., Brown, B., Cole, C., Dunn, D., Eng, E., Fox, F., . . . Hill, H.",
         u"Adams, A., B. Brown, C. Cole, D. Dunn, E. Eng, F. Fox, G. Gray, and H. Hill", u"A. Adams et al.",
         u"Adams A, Brown B, Cole C, et al."},
        {u"Smith, J., eds.", u"Smith, J., ed.", u"Smith, J. (Ed.)", u"Smith, J., ed.", u"J. Smith, ed.",
         u"Smith J, ed"},
    };
    const auto presets = test::authorPresets();
    for (const Case& c : kCases) {
        const auto author = test::authorWith(presets[0].options);
        test::read(*author, c.text);
        const Text persons = test::personsOf(*author);
        const TextView written[] = {c.mla, c.apa, c.turabian, c.ama};
        for (std::size_t style = 0; style < presets.size(); ++style) {
            SCOPED_TRACE(shown(presets[style].name));
            author->Reset(presets[style].options);
            EXPECT_EQ(author->toString(false, false), written[style]);
            const auto sink = std::make_shared<RecordingSink>();
            author->ToFormattedString(sink, false, false);
            EXPECT_EQ(sink->plain(), written[style]);
            // Its own output reads and writes the same.
            const auto again = test::authorWith(presets[style].options);
            test::read(*again, written[style]);
            EXPECT_EQ(again->toString(false, false), written[style]);
        }
        // A note has no comma before "Jr.": the host gives it options of its own.
        AuthorOptions note = test::turabianAuthorOptions();
        note.reversedAuthorPostfixUsesComma = false;
        author->Reset(note);
        EXPECT_EQ(author->toString(true, false), c.turabianNote);
        EXPECT_EQ(test::personsOf(*author), persons) << "writing changed the persons";
    }
}

TEST(AuthorForms, AnonymousAndPseudonymousAuthors) {
    const auto author = test::authorWith(test::turabianAuthorOptions());
    test::read(*author, u"[Horsley, Samuel?]");
    EXPECT_EQ(author->AuthorType(), OutputTemplateAuthor::kAttributed);
    EXPECT_EQ(author->toString(false, false), u"[Horsley, Samuel?]");
    EXPECT_EQ(author->toString(false, true), u"Horsley");

    test::read(*author, u"Stendhal [pseud.]");
    EXPECT_EQ(author->AuthorType(), OutputTemplateAuthor::kPseudonym);
    EXPECT_EQ(author->Pseudoname(), u"");
    EXPECT_EQ(author->toString(false, false), u"Stendhal [pseud.]");

    test::read(*author, u"Le Carré, John [David Cornwell]");
    EXPECT_EQ(author->Pseudoname(), u"David Cornwell");
    EXPECT_EQ(author->toString(true, false), u"John Le Carré [David Cornwell]");
    EXPECT_EQ(author->collapsePseudoToFirstName(u"Le Carré, John"), u"Le Carré, John [David Cornwell]");

    // Where brackets are for first names they stay with them.
    author->Reset(test::mlaAuthorOptions());
    EXPECT_EQ(test::read(*author, u"Le Carré, John [David Cornwell]"), u"Le Carré|John [David Cornwell]");
    EXPECT_EQ(author->AuthorType(), OutputTemplateAuthor::kOrdinary);
    EXPECT_EQ(author->toString(false, false), u"Le Carré, John [David Cornwell]");
    EXPECT_EQ(test::read(*author, u"Hinton, S[usan] E[loise]"), u"Hinton|S[usan] E[loise]");
    author->Reset(test::apaAuthorOptions());
    test::read(*author, u"Janet, P. [Paul]");
    EXPECT_EQ(author->toString(false, false), u"Janet, P. [Paul]");
}

TEST(AuthorForms, Discussant) {
    const auto author = test::authorWith(test::mlaAuthorOptions());
    EXPECT_EQ(test::read(*author, u"Smith, John. In discussion of: Jones, Kim, and Ann Doe"), u"Jones|Kim; Doe|Ann");
    EXPECT_TRUE(author->hasDiscussant());
    EXPECT_EQ(author->toString(false, false), u"Smith, John. In discussion of: Jones, Kim, and Ann Doe");
    author->Reset(test::apaAuthorOptions());
    EXPECT_EQ(author->toString(false, false), u"Smith, J. In discussion of: Jones, K., & Doe, A.");
    EXPECT_EQ(author->Discussant(), u"Smith, John");
    const Text kinds[][3] = {
        {u"King, Martin Luther, Jr.", u"King, Martin Luther, Jr.",
         u"King, M. L., Jr. In discussion of: Jones, K., & Doe, A."},
        {u"Ann Lee", u"Lee, Ann", u"Lee, A. In discussion of: Jones, K., & Doe, A."},
        {u" ", u"", u"Jones, K., & Doe, A."},
    };
    for (const auto& [given, kept, output] : kinds) {
        author->Discussant(given);
        EXPECT_EQ(author->Discussant(), kept);
        EXPECT_EQ(author->hasDiscussant(), !kept.empty());
        EXPECT_EQ(author->toString(false, false), output);
    }
    // Several persons stay the one text that they are.
    test::read(*author, u"Smith, John, and Ann Lee. In discussion of: Jones, Kim");
    const Text before = author->toString(false, false);
    author->Discussant(author->Discussant());
    EXPECT_EQ(author->toString(false, false), before);
    test::read(*author, u"Jones, Kim");
    EXPECT_FALSE(author->hasDiscussant());
}

}  // namespace
}  // namespace quorvel
