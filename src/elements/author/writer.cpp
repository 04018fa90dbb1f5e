#include "elements/author/writer.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/initials.h"
#include "elements/author/institutions.h"
#include "elements/author/layout.h"

namespace quorvel {

namespace {

constexpr TextView kOmission = u" . . . ";
constexpr TextView kPseudonymMark = u"pseud.";
constexpr std::size_t kUsualName = 48;

struct PostfixWithoutStop {
    TextView with;
    TextView without;
};
constexpr PostfixWithoutStop kPostfixesWithoutStops[] = {{u"Jr.", u"Jr"}, {u"Sr.", u"Sr"}};

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

std::int16_t behind(std::int16_t index) {
    return static_cast<std::int16_t>(index + 1);
}

std::int16_t before(std::int16_t index) {
    return static_cast<std::int16_t>(index - 1);
}

/// "(Ed.)" in its parts, so that two roles share the parentheses.
struct TagParts {
    TextView opening;
    TextView word;
    TextView closing;
};

TagParts partsOf(TextView tag) {
    if (tag.size() > 2 && tag.front() == u'(' && tag.back() == u')') {
        return {tag.substr(0, 1), tag.substr(1, tag.size() - 2), tag.substr(tag.size() - 1)};
    }
    return {{}, tag, {}};
}

/// The roles that the style tells apart.
std::array<bool, AuthorPersons::kRoles> rolesInForce(const AuthorStyle& style, const AuthorPersons& persons) {
    std::array<bool, AuthorPersons::kRoles> roles = persons.roles;
    if (!style.options.supportsCompilerAndEditor && roles[AuthorPersons::kCompiler]) {
        roles[AuthorPersons::kCompiler] = false;
        roles[AuthorPersons::kEditor] = true;
    }
    return roles;
}

}  // namespace

AuthorWriter::AuthorWriter(const Instrumented& element, AuthorStyleRef style,
                           std::shared_ptr<const AuthorPersons> persons, std::shared_ptr<outputTemplate> assembly,
                           OutputSinkRef maker, AuthorForm form)
    : mElement(element),
      mStyle(std::move(style)),
      mPersons(std::move(persons)),
      mAssembly(std::move(assembly)),
      mMaker(std::move(maker)),
      mIsMinimal(form.isMinimal),
      mIsCitation(form.isCitation),
      mInitialsOnly(options().initialsOnly && !form.forceNoInitials),
      mTrigger(form.isMinimal    ? options().numAuthorsToTriggerEtAlMinimalString
               : form.isCitation ? options().numAuthorsToTriggerEtAlCitation
                                 : options().numAuthorsToTriggerEtAl),
      mKept(form.isMinimal || form.isCitation ? options().numAuthorsInEtAlMinimalString : options().numAuthorsInEtAl) {
    mName.reserve(kUsualName);
}

void AuthorWriter::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    if (!writesSemicolons()) {
        AssembledElement::write(formattedStr, isFootnote, shortenedVersion);
        return;
    }
    const OutputSinkRef assembled = object(mMaker).BuildNewFormattedString();
    object(assembled).Reset();
    AssembledElement::write(assembled, isFootnote, shortenedVersion);
    const Text text = convertCommaToSemicolon(mElement, *mPersons, mStyle->wording, assembled->toString());
    object(formattedStr).Add(text, OutputSink::kPlain);
}

/// A list without a group author has no semicolons, whatever the style.
bool AuthorWriter::writesSemicolons() const {
    return options().semicolonBetweenGroupAuthors && mPersons->firstGroup >= 0 && mPersons->size() > 1;
}

bool AuthorWriter::reversesFirst(bool isFootnote) const {
    const bool readsOn = mIsCitation && !mIsMinimal;
    return !isFootnote || (options().ReverseFirstOnFootnote && !readsOn);
}

/// APA 6 6.27: an ellipsis stands in a reference list; a citation has "et al." all the same (6.12).
bool AuthorWriter::writesEllipses() const {
    return options().etAlUsesElipses && !mIsMinimal && !mIsCitation;
}

bool AuthorWriter::fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& /*formattedItems*/,
                             bool shortenedVersion) {
    using namespace authorlayout;
    const AuthorPersons& persons = *mPersons;
    const std::int16_t all = persons.size();
    if (!shortenedVersion) {
        items.at(kEditor) = editorTag(mElement, *mStyle, persons);
    }
    const bool isWithinLimit = (!isFootnote && !options().etAlInReferenceList) || all < mTrigger;
    if (isWithinLimit && (!persons.hasEtAl || writesEllipses())) {
        ToArray(isFootnote, items, shortenedVersion);
        return false;
    }
    if (mKept < 1) {
        items.at(kEtAl) = mStyle->wording.etAlText;
        ToArray(isFootnote, items, shortenedVersion);
        return false;
    }
    const std::int16_t last = std::min(all, mKept);
    writePersons(isFootnote, items, shortenedVersion, last);
    if (writesEllipses() && all > mKept) {
        // The first six, an ellipsis, the last.
        const TextView comma = last > 1 || !options().twoAuthorsIsOnlyCaseHaveNoComma ? u"," : u"";
        const Text& name = toStringAuthor(before(all), options().reverseSecondaryAuthors, !shortenedVersion);
        items.at(at(std::min<std::int16_t>(last, kSixthPerson))).append(comma).append(kOmission).append(name);
    } else if (persons.firstGroup >= last && options().semicolonBetweenGroupAuthors) {
        const Text& group = toStringAuthor(persons.firstGroup, options().reverseSecondaryAuthors, !shortenedVersion);
        Text& etAl = items.at(kEtAl) = mStyle->wording.etAlText;
        removeSuffix(etAl, u".");
        etAl.append(u"; ").append(group);
    } else {
        items.at(kEtAl) = mStyle->wording.etAlText;
    }
    return false;
}

/// The full list: the persons in their slots, the last of several in the slot that the and-word precedes.
void AuthorWriter::ToArray(bool isFootnote, std::vector<Text>& items, bool shortenedVersion) {
    procedure(*this, u"ToArray",
              {{u"isFootnote", isFootnote}, {u"items", items}, {u"shortenedVersion", shortenedVersion}}, [&] {
                  using namespace authorlayout;
                  const std::int16_t all = mPersons->size();
                  const std::int16_t middle = std::max<std::int16_t>(before(all), 1);
                  writePersons(isFootnote, items, shortenedVersion, std::min(all, middle));
                  if (all < 2) {
                      return;
                  }
                  const Text& last = toStringAuthor(before(all), options().reverseSecondaryAuthors, !shortenedVersion);
                  if (mPersons->hasEtAl && writesEllipses()) {
                      // The ellipsis takes the place of the and-word that the layout would write, and of no
                      // other: an "and" inside a name stays.
                      const bool isPair = all == 2;
                      const bool hasComma = isPair ? !isFootnote && !options().twoAuthorsIsOnlyCaseHaveNoComma : true;
                      items.at(at(std::min<std::int16_t>(middle, kSixthPerson)))
                          .append(hasComma ? u"," : u"")
                          .append(kOmission)
                          .append(last);
                  } else {
                      items.at(kLastPerson) = last;
                  }
              });
}

/// The discussant and the first persons up to the `last`-th. Slots 2 to 5 hold one person each, slot 6 all
/// further ones.
void AuthorWriter::writePersons(bool isFootnote, std::vector<Text>& items, bool shortenedVersion, std::int16_t last) {
    using namespace authorlayout;
    items.at(kDiscussant) = toStringDiscussant(isFootnote, shortenedVersion);
    items.at(kFirstPerson) = toStringFirstAuthor(isFootnote, shortenedVersion);
    for (std::int16_t person = kSecondPerson; person <= last; person = behind(person)) {
        const Text& name = toStringAuthor(before(person), options().reverseSecondaryAuthors, !shortenedVersion);
        Text& slot = items.at(at(std::min<std::int16_t>(person, kSixthPerson)));
        if (person > kSixthPerson) {
            slot.append(u", ").append(name);
        } else {
            slot = name;
        }
    }
}

const Text& AuthorWriter::toStringDiscussant(bool isFootnote, bool shortenedVersion) {
    mName.clear();
    procedure(*this, u"toStringDiscussant", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] {
                  if (mPersons->discussant) {
                      writeName(*mPersons->discussant, reversesFirst(isFootnote), !shortenedVersion);
                  }
              });
    return mName;
}

const Text& AuthorWriter::toStringFirstAuthor(bool isFootnote, bool shortenedVersion) {
    mName.clear();
    procedure(*this, u"toStringFirstAuthor", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] {
                  if (mPersons->isEmpty()) {
                      return;
                  }
                  toStringAuthor(0, reversesFirst(isFootnote), !shortenedVersion);
                  if (!options().SupportAnonAndPseudoAuthors || shortenedVersion) {
                      return;
                  }
                  if (mPersons->authorType == AuthorPersons::kAttributed) {
                      mName.insert(0, 1, u'[');
                      mName.append(endsWith(mName, u"?") ? u"]" : u"?]");
                  } else if (mPersons->authorType == AuthorPersons::kPseudonym) {
                      const Text& pseudoname = mPersons->pseudoname;
                      mName.append(u" [").append(pseudoname.empty() ? kPseudonymMark : TextView(pseudoname));
                      mName.push_back(u']');
                  }
              });
    return mName;
}

const Text& AuthorWriter::toStringAuthor(std::int16_t index, bool Reverse, bool useFirst) {
    mName.clear();
    procedure(*this, u"toStringAuthor", {{u"index", index}, {u"Reverse", Reverse}, {u"useFirst", useFirst}},
              [&] { writeName(mPersons->at(index), Reverse, useFirst); });
    return mName;
}

void AuthorWriter::writeName(const AuthorRecord& person, bool reverse, bool useFirst) {
    if (person.firstNames.empty() || !useFirst) {
        mName.append(person.lastName);
    } else if (reverse) {
        // AMA 10 3.7: "de Beauvoir S", since without a comma nothing tells where a "de" behind belongs.
        const TextView names = person.firstNames;
        const std::size_t particle =
            options().reversedAuthorUsesComma ? TextView::npos : authorwords::finalParticle(names);
        if (particle != TextView::npos) {
            mName.append(names.substr(particle)).push_back(u' ');
        }
        mName.append(person.lastName).append(options().reversedAuthorUsesComma ? u", " : u" ");
        toStringAuthorFirst(trim(names.substr(0, particle)));
    } else {
        toStringAuthorFirst(person.firstNames);
        mName.append(u" ").append(person.lastName);
    }
    if (!person.postfix.empty()) {
        addPostFix(person.postfix, mIsMinimal || mIsCitation);
    }
}

/// Appends the first names as the style writes them.
void AuthorWriter::toStringAuthorFirst(TextView firstNames) {
    procedure(*this, u"toStringAuthorFirst", {{u"firstNames", firstNames}}, [&] {
        if (mInitialsOnly) {
            authorwords::appendInitials(mName, firstNames, options().initialsUsePeriods);
        } else {
            mName.append(firstNames);
        }
    });
}

void AuthorWriter::addPostFix(TextView postFix, bool forceUseSpace) {
    procedure(*this, u"addPostFix", {{u"author", mName}, {u"postFix", postFix}, {u"forceUseSpace", forceUseSpace}},
              [&] {
                  TextView written = postFix;
                  if (!options().initialsUsePeriods) {
                      for (const PostfixWithoutStop& postfix : kPostfixesWithoutStops) {
                          if (equalsIgnoringCase(postFix, postfix.with)) {
                              written = postfix.without;
                          }
                      }
                  }
                  mName.append(options().reversedAuthorPostfixUsesComma && !forceUseSpace ? u", " : u" ");
                  mName.append(written);
              });
}

Text editorTag(const Instrumented& element, const AuthorStyle& style, const AuthorPersons& persons) {
    return procedure(element, u"editor[Get]", kNoParameters, [&] {
        Text result;
        if (std::find(persons.roles.begin(), persons.roles.end(), true) == persons.roles.end()) {
            return result;
        }
        const auto roles = rolesInForce(style, persons);
        const bool areSeveral = persons.size() > 1 || persons.hasEtAl;
        const std::vector<Text>& tags = areSeveral ? style.editorTagsPlural : style.editorTagsSingular;
        TextView closing;
        for (std::size_t role = 0; role < std::min(roles.size(), tags.size()); ++role) {
            if (!roles[role] || tags[role].empty()) {
                continue;
            }
            const TagParts tag = partsOf(tags[role]);
            if (result.empty()) {
                result.append(tag.opening);
            } else {
                // "(Eds. & Trans.)" shares the parentheses and has the style's own word.
                const bool hasOwnWord = !closing.empty() && !trim(style.andSeparator).empty();
                result.append(hasOwnWord ? TextView(style.andSeparator) : TextView(u" and "));
            }
            result.append(tag.word);
            closing = tag.closing;
        }
        return result.append(closing);
    });
}

Text convertCommaToSemicolon(const Instrumented& element, const AuthorPersons& persons, const AuthorWording& wording,
                             TextView text) {
    return procedure(element, u"convertCommaToSemicolon", {{u"text", text}}, [&] {
        Text result(text);
        if (contains(toLower(text), u"et al") || (!wording.etAlText.empty() && contains(text, wording.etAlText))) {
            return result;
        }
        for (std::int16_t i = std::max<std::int16_t>(persons.firstGroup, 0); i < persons.size(); ++i) {
            const AuthorRecord& person = persons.at(i);
            const bool isGroup = i == persons.firstGroup ||
                                 (person.firstNames.empty() && authorwords::possibleAuthor(element, person.lastName));
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
