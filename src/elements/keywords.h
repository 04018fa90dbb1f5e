#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// Search keywords for the host's database, taken from free text or from a list that the user keeps
/// (element type code 14). No style changes them; notes and bibliography are alike.
///
///   parsed as                  accepted text               keywords
///   free text                  The Cat, the cat and CAT    cat
///   free text                  zebra,apple                 apple,zebra
///   list, order kept           zebra,apple, ox             zebra,apple,ox
///   list, order kept           my quorveldatabase          my quorveldatabase
///
/// A keyword begins with a lower-case letter from "a" to "z"; names, numbers and the commonest words
/// of English are none.
class OutputTemplateKeywords final : public Instrumented {
public:
    /// The second argument of `Parse` for a list whose order is the user's.
    static constexpr TextView kKeepOrder = u"KEEP_ORDER";

    /// Fills the table of noise words. The sink is not used.
    void Initialize(const OutputSinkRef& formattedStr);

    /// Whether there is a keyword.
    bool hasWords() const;

    /// Forgets the keywords. There are no options.
    void Reset();

    /// Takes the keywords of a text in the place of those there are.
    /// @param str words separated by blanks and commas; it stays as it is
    /// @param previousStr kKeepOrder: a list that the user typed, whose order is kept and whose words may
    ///        have two letters. Anything else: free text, whose words have three letters and more and are
    ///        sorted
    void Parse(TextView str, TextView previousStr);

    /// Notes a word as known, so that it is accepted once. It does not get into `toString`; `Parse` does
    /// that.
    /// @param useMinLengthOfKeyword words of fewer than three characters are refused
    /// @return whether the word is a keyword that was not known yet
    bool Add(TextView word, bool useMinLengthOfKeyword);

    /// Whether a word has the form of a keyword: two characters or more, the first one a lower-case letter
    /// from "a" to "z", no blank, backslash or semicolon. The host's own database name is one too.
    bool validKeyword(TextView word) const;

    /// Whether a word is never a keyword: a noise word or a single character.
    bool exists(TextView word) const;

    /// Adds `toString` to the sink.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) const;

    /// The keywords with commas between them and no blanks.
    Text toString(bool isFootnote, bool shortenedVersion) const;

    TextView className() const override { return u"OutputTemplateKeywords"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void keepMyQuorvelDatabase(std::vector<Text>& phrases) const;
    void stripOffPunctuation(Text& word, bool keepQuotes) const;
    bool startsWithLowercaseLetter(TextView word) const;

    std::vector<Text> mWords;
    std::unordered_set<Text> mWordSet;
    std::unordered_set<TextView> mNoiseWords;
};

}  // namespace quorvel
