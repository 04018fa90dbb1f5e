#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/author.h"
#include "elements/author/layout.h"

/// Writing the list: which persons, in which slots, and how a person is written.
namespace quorvel {

namespace {

constexpr TextView kEtAlText = u"et al.";
constexpr TextView kEtAlGroup = u"et al; ";
constexpr TextView kOmission = u" . . . ";
constexpr std::size_t kRoomForSigns = 8;
constexpr TextView kPseudonymMark = u"pseud.";

struct PostfixWithoutStop {
    TextView with;
    TextView without;
};
constexpr PostfixWithoutStop kPostfixesWithoutStops[] = {{u"Jr.", u"Jr"}, {u"Sr.", u"Sr"}};

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

bool isHyphen(char16_t unit) {
    return unit == u'-' || unit == u'\u2010' || unit == u'\u2011';
}

/// How many code units the first letter has: a surrogate pair has two, and combining marks stay with
/// their letter.
std::size_t firstLetter(TextView word) {
    std::size_t size = word.size() > 1 && word[0] >= u'\xD800' && word[0] <= u'\xDBFF' ? 2 : 1;
    while (size < word.size() && word[size] >= u'\u0300' && word[size] <= u'\u036F') {
        ++size;
    }
    return size;
}

/// "DT": initials that stand without stops and blanks.
bool isRunOfCapitals(TextView firstNames) {
    return std::all_of(firstNames.begin(), firstNames.end(),
                       [](char16_t unit) { return isCapital(unit) || isHyphen(unit); });
}

/// Where the particle at the end of first names begins ("Simone de"); npos when there is none.
std::size_t finalParticle(TextView firstNames) {
    const std::size_t blank = firstNames.rfind(u' ');
    const bool isParticle = blank != TextView::npos && blank + 1 < firstNames.size() && firstNames[blank + 1] >= u'a' &&
                            authorwords::wordOf(firstNames.substr(blank + 1)).is(authorwords::kParticle);
    return isParticle ? blank + 1 : TextView::npos;
}

class InitialsWriter {
public:
    /// Appends to the result.
    InitialsWriter(Text& result, bool usesPeriods)
        : mResult(result), mBegin(result.size()), mUsesPeriods(usesPeriods) {}

    /// A word of the first names: "John", "Jean-Paul", "J.-P.", "A.T.", "[Paul]", "de".
    void add(TextView word) {
        // "Beauvoir, Simone de" is "Beauvoir, S. de".
        const bool isParticle = word.front() >= u'a' && authorwords::wordOf(word).is(authorwords::kParticle);
        if (word.front() == u'[' || isParticle) {
            addWhole(word);
        } else {
            addLetters(word);
        }
    }

private:
    void addWhole(TextView word) {
        if (!isEmpty()) {
            mResult.push_back(u' ');
        }
        mResult.append(word);
        mLastIsWhole = true;
    }

    void addLetters(TextView word) {
        bool isFirstOfWord = true;
        bool beginsPart = true;
        bool afterHyphen = false;
        for (std::size_t i = 0; i < word.size(); ++i) {
            if (isHyphen(word[i]) || word[i] == u'.') {
                afterHyphen = isHyphen(word[i]);
                beginsPart = true;
                continue;
            }
            if (beginsPart) {
                const std::size_t size = firstLetter(word.substr(i));
                addLetter(word.substr(i, size), afterHyphen && !isFirstOfWord);
                isFirstOfWord = false;
                beginsPart = false;
                afterHyphen = false;
                i += size - 1;
            }
        }
    }

    void addLetter(TextView letter, bool isHyphened) {
        if (mUsesPeriods && !isEmpty()) {
            mResult.push_back(isHyphened ? u'-' : u' ');
        } else if (mLastIsWhole) {
            mResult.push_back(u' ');
        }
        mLastIsWhole = false;
        mResult.append(letter);
        if (mUsesPeriods) {
            mResult.push_back(u'.');
        }
    }

    bool isEmpty() const { return mResult.size() == mBegin; }

    Text& mResult;
    std::size_t mBegin;
    bool mUsesPeriods;
    bool mLastIsWhole = false;
};

/// A setting that holds another value for the length of a call.
template <class T>
class Switched {
public:
    Switched(T& setting, T value) : mSetting(setting), mSaved(setting) { setting = value; }
    Switched(const Switched&) = delete;
    Switched& operator=(const Switched&) = delete;
    ~Switched() { mSetting = mSaved; }

private:
    T& mSetting;
    T mSaved;
};

}  // namespace

void OutputTemplateAuthor::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote,
                                             bool shortenedVersion) {
    procedure(*this, u"ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] {
                  const std::shared_ptr<outputTemplate> assembly = mOutputTemplate;
                  object(assembly).ResetReferenceItems();
                  if (!writesSemicolons()) {
                      assembly->ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote);
                      return;
                  }
                  const OutputSinkRef assembled = held(mFormattedStr)->BuildNewFormattedString();
                  object(assembled).Reset();
                  assembly->ToFormattedString(assembled, *this, shortenedVersion, isFootnote);
                  object(formattedStr).Add(convertCommaToSemicolon(assembled->toString()), OutputSink::kPlain);
              });
}

/// A list without a group author has no semicolons, whatever the style.
bool OutputTemplateAuthor::writesSemicolons() const {
    return mSemicolonBetweenGroupAuthors && mFirstGroupAuthorIndex >= 0 && mNumAuthors > 1;
}

bool OutputTemplateAuthor::ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items,
                                                 std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    return procedure(
        *this, u"ToFormattedStringImpl",
        {{u"isFootnote", isFootnote}, {u"items", items}, {u"shortenedVersion", shortenedVersion}}, [&] {
            static_cast<void>(formattedItems);
            using authorlayout::kDiscussant;
            using authorlayout::kFirstPerson;
            using authorlayout::kSecondPerson;
            using authorlayout::kSixthPerson;
            if (!shortenedVersion) {
                items.at(authorlayout::kEditor) = editor();
            }
            const bool isWithinLimit = (!isFootnote && !mEtAlInReferenceList) || mNumAuthors < mNumAuthorsToTriggerEtAl;
            if (isWithinLimit && (!HasEtAl || mEtAlUsesElipses)) {
                ToArray(isFootnote, items, shortenedVersion);
                return false;
            }
            const std::int16_t kept = mNumAuthorsInEtAl;
            if (kept < 1) {
                items.at(authorlayout::kEtAl) = kEtAlText;
                ToArray(isFootnote, items, shortenedVersion);
                return false;
            }
            items.at(kDiscussant) = toStringDiscussant(isFootnote, shortenedVersion);
            items.at(kFirstPerson) = toStringFirstAuthor(isFootnote, shortenedVersion);
            const std::int16_t last = std::min(mNumAuthors, kept);
            for (std::int16_t slot = kSecondPerson; slot <= std::min<std::int16_t>(last, kSixthPerson); ++slot) {
                items.at(at(slot)) = slot == kSixthPerson ? restOf(slot, last, !shortenedVersion)
                                                          : toStringAuthor(static_cast<std::int16_t>(slot - 1),
                                                                           mReverseSecondaryAuthors, !shortenedVersion);
            }
            if (mEtAlUsesElipses && !mIsCitationForm && mNumAuthors > kept) {
                // APA 6 6.27: the first six, an ellipsis, the last; a citation has "et al." all the same.
                Text& lastKept = items.at(at(std::min<std::int16_t>(last, kSixthPerson)));
                const TextView comma = last > 1 || !mTwoAuthorsIsOnlyCaseHaveNoComma ? u"," : u"";
                lastKept.append(comma).append(kOmission).append(toStringAuthor(
                    static_cast<std::int16_t>(mNumAuthors - 1), mReverseSecondaryAuthors, !shortenedVersion));
                return false;
            }
            if (mFirstGroupAuthorIndex >= 0 && mSemicolonBetweenGroupAuthors) {
                const bool isWrittenAlready = mFirstGroupAuthorIndex < last;
                items.at(authorlayout::kEtAl) =
                    isWrittenAlready
                        ? Text(kEtAlText)
                        : concatenate({kEtAlGroup, toStringAuthor(mFirstGroupAuthorIndex, mReverseSecondaryAuthors,
                                                                  !shortenedVersion)});
            } else {
                items.at(authorlayout::kEtAl) = kEtAlText;
            }
            return false;
        });
}

/// The full list: the persons in their slots, the last of several in the slot that the and-word
/// precedes. Slots 2 to 5 hold one person each, slot 6 all further ones but the last.
void OutputTemplateAuthor::ToArray(bool isFootnote, std::vector<Text>& items, bool shortenedVersion) const {
    procedure(
        *this, u"ToArray", {{u"isFootnote", isFootnote}, {u"items", items}, {u"shortenedVersion", shortenedVersion}},
        [&] {
            using namespace authorlayout;
            items.at(kDiscussant) = toStringDiscussant(isFootnote, shortenedVersion);
            if (mNumAuthors == 0) {
                return;
            }
            items.at(kFirstPerson) = toStringFirstAuthor(isFootnote, shortenedVersion);
            const auto middle = static_cast<std::int16_t>(mNumAuthors - 1);
            for (std::int16_t slot = kSecondPerson; slot <= std::min<std::int16_t>(middle, kSixthPerson); ++slot) {
                items.at(at(slot)) = slot == kSixthPerson ? restOf(slot, middle, !shortenedVersion)
                                                          : toStringAuthor(static_cast<std::int16_t>(slot - 1),
                                                                           mReverseSecondaryAuthors, !shortenedVersion);
            }
            if (mNumAuthors == 1) {
                return;
            }
            Text last = toStringAuthor(middle, mReverseSecondaryAuthors, !shortenedVersion);
            if (HasEtAl && mEtAlUsesElipses) {
                // The ellipsis takes the place of the and-word that the layout would write, and of no
                // other: an "and" inside a name stays.
                const bool isPair = mNumAuthors == 2;
                const bool hasComma = isPair ? !isFootnote && !mTwoAuthorsIsOnlyCaseHaveNoComma : true;
                items.at(at(std::min<std::int16_t>(middle, kSixthPerson)))
                    .append(hasComma ? u"," : u"")
                    .append(kOmission)
                    .append(last);
            } else {
                items.at(kLastPerson) = std::move(last);
            }
        });
}

/// The persons of the slots `from` to `to` in one text.
Text OutputTemplateAuthor::restOf(std::int16_t from, std::int16_t to, bool useFirst) const {
    Text result;
    for (std::int16_t slot = from; slot <= to; ++slot) {
        result.append(slot == from ? u"" : u", ")
            .append(toStringAuthor(static_cast<std::int16_t>(slot - 1), mReverseSecondaryAuthors, useFirst));
    }
    return result;
}

Text OutputTemplateAuthor::toString(bool isFootnote, bool shortenedVersion, bool isMinimal, bool isCitation,
                                    bool forceNoInitials, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote},
                      {u"shortenedVersion", shortenedVersion},
                      {u"isMinimal", isMinimal},
                      {u"isCitation", isCitation},
                      {u"forceNoInitials", forceNoInitials},
                      {u"isRTF", isRTF}},
                     [&] {
                         const bool isShortForm = isMinimal || isCitation;
                         const std::int16_t trigger = isMinimal    ? mNumAuthorsToTriggerEtAlMinimalString
                                                      : isCitation ? mNumAuthorsToTriggerEtAlCitation
                                                                   : mNumAuthorsToTriggerEtAl;
                         const Switched switchedTrigger(mNumAuthorsToTriggerEtAl, trigger);
                         const Switched switchedKept(mNumAuthorsInEtAl,
                                                     isShortForm ? mNumAuthorsInEtAlMinimalString : mNumAuthorsInEtAl);
                         const Switched switchedReverse(mReverseFirstOnFootnote,
                                                        isCitation && !isMinimal ? false : mReverseFirstOnFootnote);
                         const Switched switchedForm(mIsCitationForm, isShortForm);
                         if (forceNoInitials) {
                             mInitialsOnly = false;
                         }
                         const std::shared_ptr<outputTemplate> assembly = mOutputTemplate;
                         Text result = object(assembly).toString(*this, shortenedVersion, isFootnote, isRTF);
                         if (forceNoInitials) {
                             // Not the former value: deliberate, hosts have come to rely on it.
                             mInitialsOnly = true;
                         }
                         return result;
                     });
}

void OutputTemplateAuthor::toCitationFormat(Text& form1, Text& form2) {
    procedure(*this, u"toCitationFormat", {{u"form1", form1}, {u"form2", form2}}, [&] {
        form1 = toString(false, true);
        form2 = replaceAll(form1, u"&", u"and");
    });
}

Text OutputTemplateAuthor::toStringDiscussant(bool isFootnote, bool shortenedVersion) const {
    return procedure(
        *this, u"toStringDiscussant", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}}, [&] {
            const std::shared_ptr<const AuthorRecord> discussant = mDiscussant;
            return discussant ? nameOf(*discussant, !isFootnote || mReverseFirstOnFootnote, !shortenedVersion) : Text();
        });
}

Text OutputTemplateAuthor::toStringFirstAuthor(bool isFootnote, bool shortenedVersion) const {
    return procedure(
        *this, u"toStringFirstAuthor", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}}, [&] {
            if (mNumAuthors == 0) {
                return Text();
            }
            Text name = toStringAuthor(0, !isFootnote || mReverseFirstOnFootnote, !shortenedVersion);
            if (!mSupportAnonAndPseudoAuthors || shortenedVersion) {
                return name;
            }
            if (AuthorType == kAttributed) {
                return concatenate({u"[", name, endsWith(name, u"?") ? u"]" : u"?]"});
            }
            if (AuthorType == kPseudonym) {
                return concatenate({name, u" [", Pseudoname.empty() ? kPseudonymMark : TextView(Pseudoname), u"]"});
            }
            return name;
        });
}

Text OutputTemplateAuthor::toStringAuthor(std::int16_t index, bool Reverse, bool useFirst) const {
    return procedure(*this, u"toStringAuthor", {{u"index", index}, {u"Reverse", Reverse}, {u"useFirst", useFirst}},
                     [&] { return nameOf(author(index), Reverse, useFirst); });
}

Text OutputTemplateAuthor::nameOf(const AuthorRecord& person, bool reverse, bool useFirst) const {
    Text name;
    // Room for separators, and for the stops that initials get.
    name.reserve(person.lastName.size() + person.firstNames.size() + person.postfix.size() + kRoomForSigns);
    if (person.firstNames.empty() || !useFirst) {
        name = person.lastName;
    } else if (reverse) {
        // AMA 10 3.7: "de Beauvoir S", since without a comma nothing tells where a "de" behind belongs.
        const TextView names = person.firstNames;
        const std::size_t particle = mReversedAuthorUsesComma ? TextView::npos : finalParticle(names);
        if (particle != TextView::npos) {
            name.append(names.substr(particle)).append(u" ");
        }
        name.append(person.lastName).append(mReversedAuthorUsesComma ? u", " : u" ");
        toStringAuthorFirst(trim(names.substr(0, particle)), name);
    } else {
        toStringAuthorFirst(person.firstNames, name);
        name.append(u" ").append(person.lastName);
    }
    if (!person.postfix.empty()) {
        addPostFix(name, person.postfix, mIsCitationForm);
    }
    return name;
}

/// Appends the first names as the style writes them.
void OutputTemplateAuthor::toStringAuthorFirst(TextView firstNames, Text& result) const {
    procedure(*this, u"toStringAuthorFirst", {{u"firstNames", firstNames}}, [&] {
        if (!mInitialsOnly || isRunOfCapitals(firstNames)) {
            result.append(firstNames);
            return;
        }
        InitialsWriter initials(result, mInitialsUsePeriods);
        for (std::size_t from = 0; from < firstNames.size();) {
            std::size_t end = firstNames[from] == u'[' ? firstNames.find(u']', from) : firstNames.find(u' ', from);
            end = std::min(end, firstNames.size());
            if (end < firstNames.size() && firstNames[end] == u']') {
                ++end;
            }
            if (end > from) {
                initials.add(firstNames.substr(from, end - from));
            }
            from = end + (end < firstNames.size() && firstNames[end] == u' ' ? 1 : 0);
        }
    });
}

void OutputTemplateAuthor::addPostFix(Text& author, TextView postFix, bool forceUseSpace) const {
    procedure(*this, u"addPostFix", {{u"author", author}, {u"postFix", postFix}, {u"forceUseSpace", forceUseSpace}},
              [&] {
                  TextView written = postFix;
                  if (!mInitialsUsePeriods) {
                      for (const PostfixWithoutStop& postfix : kPostfixesWithoutStops) {
                          if (equalsIgnoringCase(postFix, postfix.with)) {
                              written = postfix.without;
                          }
                      }
                  }
                  author.append(mReversedAuthorPostfixUsesComma && !forceUseSpace ? u", " : u" ").append(written);
              });
}

Text OutputTemplateAuthor::convertCommaToSemicolon(TextView text) const {
    return procedure(*this, u"convertCommaToSemicolon", {{u"text", text}}, [&] {
        Text result(text);
        if (contains(toLower(text), u"et al")) {
            return result;
        }
        for (std::int16_t i = std::max<std::int16_t>(mFirstGroupAuthorIndex, 0); i < mNumAuthors; ++i) {
            const AuthorRecord& person = author(i);
            const bool isGroup =
                i == mFirstGroupAuthorIndex || (person.firstNames.empty() && possibleAuthor(person.lastName));
            const std::size_t begin = isGroup ? result.find(person.lastName) : Text::npos;
            if (begin == Text::npos) {
                continue;
            }
            const std::size_t comma = result.find_last_not_of(u' ', begin == 0 ? 0 : begin - 1);
            if (begin > 0 && comma != Text::npos && result[comma] == u',') {
                result[comma] = u';';
            }
            const std::size_t end = begin + person.lastName.size();
            if (end < result.size() && result[end] == u',') {
                result[end] = u';';
            }
        }
        return result;
    });
}

}  // namespace quorvel
