#include "core/output_template.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory_resource>
#include <utility>

#include "core/common_model_processing_functions.h"
#include "core/procedure.h"

namespace quorvel {

namespace {

constexpr TextView kClosingMark(&kRightDoubleQuotationMark, 1);
// The memory of a longer one is not kept.
constexpr std::size_t kLongestKeptPhrase = 1'000;
// So many need no memory of the heap to be held.
constexpr std::size_t kUsualFragments = 20;

std::size_t at(std::int32_t index) {
    if (index < 0) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index);
}

/// The part-th of `parts` equal runs of a separator array.
std::shared_ptr<const std::vector<Text>> part(const std::vector<Text>& separators, std::size_t part,
                                              std::size_t parts) {
    const auto length = static_cast<std::ptrdiff_t>(separators.size() / parts);
    const auto first = separators.begin() + length * static_cast<std::ptrdiff_t>(part);
    return std::make_shared<const std::vector<Text>>(first, first + length);
}

std::int16_t upperBound(const std::vector<Text>& array) {
    return static_cast<std::int16_t>(std::min<std::size_t>(array.size(), INT16_MAX) - 1);
}

/// Takes the closing mark of the inner quotation off as well, where the host's sink knows that mark.
bool removesSingleMark(OutputSink& sink) {
    sink.removeQuoteFromLastPhrase();
    return !sink.toString().ends_with(kRightSingleQuotationMark);
}

[[noreturn]] void failAtSlot(std::int16_t slot, TextView what) {
    const Text subject = concatenate({u"slot ", decimal(slot), what});
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, descriptionOf(ErrorNumber::SubscriptOutOfRange, subject));
}

/// The separator list of a slot as one line of a dump.
Text summary(const std::shared_ptr<const std::vector<Text>>& list) {
    return list ? join(*list, u"|") : Text();
}

}  // namespace

void outputTemplate::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}},
              [&] { mFormattedStr = object(formattedStr).Clone(); });
}

void outputTemplate::Reset(std::int16_t maxReferenceItems, const std::vector<std::int16_t>& separatorFonts) {
    procedure(*this, u"Reset", {{u"maxReferenceItems", maxReferenceItems}, {u"separatorFonts", separatorFonts}}, [&] {
        mReferenceItemsInitialized = false;
        mIndexToFormatted = std::make_shared<const std::vector<std::int16_t>>();
        mReferenceItems.assign(at(maxReferenceItems) + 1, {});
        mMaxReferenceItems = maxReferenceItems;
        mSeparatorFonts.assign(at(maxReferenceItems) + 2, static_cast<std::int16_t>(OutputSink::kPlain));
        for (std::size_t i = 0; i < separatorFonts.size(); ++i) {
            mSeparatorFonts.at(i) = separatorFonts[i];
        }
    });
}

void outputTemplate::Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators) {
    procedure(
        *this, u"Add",
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"isChecking", isChecking}, {u"separators", separators}},
        [&] {
            if (Index < 0 || at(Index) >= mReferenceItems.size()) {
                failAtSlot(Index, concatenate({u" is beyond the last, ", decimal(mMaxReferenceItems)}));
            }
            mReferenceItems[at(Index)] = ReferenceItem();
            mReferenceItems[at(Index)].isFormatted = isFormatted;
            if (Index == mMaxReferenceItems) {
                std::vector<std::int16_t> indexToFormatted;
                for (std::int16_t i = 0; i <= mMaxReferenceItems; ++i) {
                    if (mReferenceItems[at(i)].isFormatted) {
                        indexToFormatted.push_back(i);
                    }
                }
                mIndexToFormatted = std::make_shared<const std::vector<std::int16_t>>(std::move(indexToFormatted));
            }
            const std::int16_t ubound = upperBound(separators);
            const bool isOneList = ubound == mMaxReferenceItems + 1 - Index;
            const bool hasFootnote = hasFootnoteSeparators(Index, isChecking, ubound);
            // Looked up behind the report that this made: the host may have called for a new layout.
            ReferenceItem& item = mReferenceItems.at(at(Index));
            if (hasFootnote) {
                const std::size_t parts = isChecking ? 4 : 2;
                item.bibliographySeparators = part(separators, 0, parts);
                item.footnoteSeparators = part(separators, 1, parts);
                if (isChecking) {
                    item.checkBibliographySeparators = part(separators, 2, parts);
                    item.checkFootnoteSeparators = part(separators, 3, parts);
                }
            } else {
                const std::size_t parts = isChecking && !isOneList ? 2 : 1;
                item.bibliographySeparators = part(separators, 0, parts);
                item.footnoteSeparators = item.bibliographySeparators;
                if (isChecking) {
                    item.checkBibliographySeparators = part(separators, parts - 1, parts);
                    item.checkFootnoteSeparators = item.checkBibliographySeparators;
                }
            }
            const std::size_t needed = at(mMaxReferenceItems + 2 - Index);
            item.isShort = item.bibliographySeparators->size() < needed;
            if (item.isShort) {
                failAtSlot(Index, concatenate({u" has ", decimal(ubound + 1), u" separators; a list of it is ",
                                               decimal(mMaxReferenceItems + 2 - Index)}));
            }
        });
}

bool outputTemplate::hasFootnoteSeparators(std::int16_t Index, bool isChecking, std::int16_t uboundSeparators) const {
    return procedure(*this, u"hasFootnoteSeparators",
                     {{u"Index", Index}, {u"isChecking", isChecking}, {u"uboundSeparators", uboundSeparators}}, [&] {
                         const int uboundOneList = mMaxReferenceItems + 1 - Index;
                         if (uboundSeparators - 1 == 2 * uboundOneList) {
                             return !isChecking;
                         }
                         // A length that fits no shape counts as four lists and shows at the entry that is missing.
                         return uboundSeparators != uboundOneList;
                     });
}

void outputTemplate::ResetReferenceItems() {
    procedure(*this, u"ResetReferenceItems", kNoParameters, [&] {
        mItems.resize(mReferenceItems.size());
        for (Text& item : mItems) {
            item.clear();
        }
        // Held: the host's answer to a call below may be a new layout.
        const Slots indexToFormatted = mIndexToFormatted;
        // A row without fragments is as good as a new one.
        const bool hasRow = indexToFormatted->empty() && mFormattedItems.size() == mReferenceItems.size() &&
                            std::none_of(mFormattedItems.begin(), mFormattedItems.end(),
                                         [](const OutputSinkRef& fragment) { return fragment != nullptr; });
        if (!mReferenceItemsInitialized && !hasRow) {
            // By a swap, so that the old fragments go when the new row is already in place.
            std::vector<OutputSinkRef>(mReferenceItems.size()).swap(mFormattedItems);
        }
        for (const std::int16_t i : *indexToFormatted) {
            OutputSinkRef fragment = mFormattedItems.at(at(i));
            if (!mReferenceItemsInitialized) {
                const OutputSinkRef maker = mFormattedStr;
                fragment = object(maker).BuildNewFormattedString();
                replace(mFormattedItems.at(at(i)), fragment);
            }
            object(fragment).Reset();
        }
        // A layout that the host called for meanwhile gets fragments of its own, unless these fit it.
        mReferenceItemsInitialized = !indexToFormatted->empty() && *indexToFormatted == *mIndexToFormatted &&
                                     mFormattedItems.size() == mReferenceItems.size();
    });
}

void outputTemplate::ToFormattedString(const OutputSinkRef& formattedStr, Implementor& implementor,
                                       bool shortenedVersion, bool isFootnote, const std::vector<bool>& checkingArray) {
    const auto parameters = [&] {
        return std::array{Parameter{u"formattedStr", formattedStr}, Parameter{u"implementor", implementor.hostObject()},
                          Parameter{u"shortenedVersion", shortenedVersion}, Parameter{u"isFootnote", isFootnote},
                          Parameter{u"checkingArray", checkingArray}};
    };
    procedure(*this, u"ToFormattedString", parameters, [&] {
        // Held, since the host may call for new ones while they are being written.
        // NOLINTNEXTLINE(*-member-init): room for what is put there, and nothing to read before
        std::array<std::byte, kUsualFragments * sizeof(OutputSinkRef)> room;
        std::pmr::monotonic_buffer_resource memory(room.data(), room.size());
        std::pmr::vector<OutputSinkRef> fragments(&memory);
        fragments.reserve(mIndexToFormatted->size());
        for (const std::int16_t slot : *mIndexToFormatted) {
            fragments.push_back(mFormattedItems.at(at(slot)));
        }
        if (!implementor.ToFormattedStringImpl(isFootnote, mItems, mFormattedItems, shortenedVersion)) {
            writeSlots(formattedStr, isFootnote, checkingArray);
        }
    });
}

void outputTemplate::writeSlots(const OutputSinkRef& formattedStr, bool isFootnote,
                                const std::vector<bool>& checkingArray) {
    std::int16_t i = nextFilled(0);
    if (i > mMaxReferenceItems) {
        return;
    }
    Separators list = getSeparators(i, checkingArray, isFootnote);
    Text phrase = std::exchange(mPhrase, Text());
    bool noQuote = false;
    const Text prefix = getSeparator(*list, i, i, formattedStr, noQuote, phrase);
    buildReferenceStringFirst(i, formattedStr, prefix, phrase);
    while (i <= mMaxReferenceItems) {
        const std::int16_t j = nextFilled(static_cast<std::int16_t>(i + 1));
        addSeparator(*list, i, j, formattedStr, mSeparatorFonts.at(at(j)), phrase);
        if (j <= mMaxReferenceItems) {
            list = getSeparators(j, checkingArray, isFootnote);
            buildReferenceString(j, formattedStr, phrase);
        }
        i = j;
    }
    if (phrase.capacity() <= kLongestKeptPhrase) {
        mPhrase = std::move(phrase);
    }
}

Text outputTemplate::toString(Implementor& implementor, bool shortenedVersion, bool isFootnote, bool isRTF) {
    const auto parameters = [&] {
        return std::array{Parameter{u"implementor", implementor.hostObject()},
                          Parameter{u"shortenedVersion", shortenedVersion}, Parameter{u"isFootnote", isFootnote},
                          Parameter{u"isRTF", isRTF}};
    };
    return procedure(*this, u"toString", parameters, [&] {
        // Held on its own: the host may release the owner while it is being written to.
        const OutputSinkRef sink = mFormattedStr;
        object(sink).Reset();
        implementor.ToFormattedString(sink, isFootnote, shortenedVersion);
        return isRTF ? sink->toRTFString() : sink->toString();
    });
}

bool outputTemplate::isBlank(std::int16_t Index) const {
    const auto parameters = [&] { return std::array{Parameter{u"Index", Index}}; };
    return procedure(*this, u"isBlank", parameters, [&] {
        if (mReferenceItems.at(at(Index)).isFormatted) {
            const OutputSinkRef fragment = mFormattedItems.at(at(Index));
            return object(fragment).IsEmpty();
        }
        return mItems.at(at(Index)).empty();
    });
}

outputTemplate::Separators outputTemplate::getSeparators(std::int16_t Index, const std::vector<bool>& checkingArray,
                                                         bool isFootnote) const {
    static const auto kNone = std::make_shared<const std::vector<Text>>();
    const auto parameters = [&] {
        return std::array{Parameter{u"Index", Index}, Parameter{u"checkingArray", checkingArray},
                          Parameter{u"isFootnote", isFootnote}};
    };
    Separators result = procedure(*this, u"getSeparators", parameters, [&] {
        const ReferenceItem& item = mReferenceItems.at(at(Index));
        const bool isChecked = at(Index) < checkingArray.size() && checkingArray[at(Index)];
        return isChecked ? (isFootnote ? item.checkFootnoteSeparators : item.checkBibliographySeparators)
                         : (isFootnote ? item.footnoteSeparators : item.bibliographySeparators);
    });
    if (!result) {
        result = kNone;
    }
    return result;
}

Text outputTemplate::getSeparator(const std::vector<Text>& list, std::int16_t i, std::int16_t j,
                                  const OutputSinkRef& formattedStr, bool& removeQuoteFromPreviousPhrase,
                                  Text& phrase) const {
    const auto parameters = [&] {
        return std::array{Parameter{u"list", list}, Parameter{u"i", i}, Parameter{u"j", j},
                          Parameter{u"formattedStr", formattedStr},
                          Parameter{u"removeQuoteFromPreviousPhrase", removeQuoteFromPreviousPhrase}};
    };
    return procedure(*this, u"getSeparator", parameters, [&]() -> Text {
        if (at(j - i) >= list.size() && mReferenceItems.at(at(i)).isShort) {
            return {};
        }
        const Text& entry = list.at(at(j - i));
        const bool looksAtPhrase = entry.starts_with(u'.') || entry.starts_with(u',');
        if (!looksAtPhrase && !VBWPROTECTOR::ofThisApartment().isConcerned()) {
            // Which comes to the same where nobody is told.
            removeQuoteFromPreviousPhrase = false;
            return entry;
        }
        readPhrase(i, phrase);
        if (i == j) {
            // The opening text looks at the end of its own slot, which is deliberate; no quotation stands before it.
            return CommonModelProcessingFunctions::removeDoublePeriodsOnly(phrase, entry);
        }
        return CommonModelProcessingFunctions::removeDoublePeriods(phrase, entry, removeQuoteFromPreviousPhrase);
    });
}

void outputTemplate::addSeparator(const std::vector<Text>& list, std::int16_t i, std::int16_t j,
                                  const OutputSinkRef& formattedStr, std::int16_t separatorFont, Text& phrase) const {
    const auto parameters = [&] {
        return std::array{Parameter{u"list", list}, Parameter{u"i", i}, Parameter{u"j", j},
                          Parameter{u"formattedStr", formattedStr}, Parameter{u"separatorFont", separatorFont}};
    };
    procedure(*this, u"addSeparator", parameters, [&] {
        OutputSink& sink = object(formattedStr);
        bool removeQuote = false;
        Text separator = getSeparator(list, i, j, formattedStr, removeQuote, phrase);
        std::int16_t font = separatorFont;
        if (removeQuote && separatorFont == OutputSink::kPlain) {
            const std::int16_t phraseFont = sink.removeQuoteFromLastPhrase();
            if (CommonModelProcessingFunctions::closesTwoQuotations(phrase) && removesSingleMark(sink)) {
                separator.insert(separator.find(kClosingMark), 1, kRightSingleQuotationMark);
            }
            if (phraseFont != OutputSink::kPlain) {
                // The mark keeps the font of the phrase that it closes.
                const std::size_t behindMark = separator.find(kClosingMark) + kClosingMark.size();
                sink.Add(TextView(separator).substr(0, behindMark), phraseFont);
                separator.erase(0, behindMark);
                font = OutputSink::kPlain;
            }
        }
        sink.Add(separator, font);
    });
}

void outputTemplate::buildReferenceStringFirst(std::int16_t Index, const OutputSinkRef& formattedStr, TextView prefix,
                                               Text& phrase) const {
    procedure(*this, u"buildReferenceStringFirst",
              {{u"Index", Index}, {u"formattedStr", formattedStr}, {u"prefix", prefix}}, [&] {
                  object(formattedStr).Add(prefix);
                  buildReferenceString(Index, formattedStr, phrase);
              });
}

void outputTemplate::buildReferenceString(std::int16_t Index, const OutputSinkRef& formattedStr, Text& phrase) const {
    const auto parameters = [&] {
        return std::array{Parameter{u"Index", Index}, Parameter{u"formattedStr", formattedStr}};
    };
    procedure(*this, u"buildReferenceString", parameters, [&] {
        if (mReferenceItems.at(at(Index)).isFormatted) {
            const OutputSinkRef fragment = mFormattedItems.at(at(Index));
            object(formattedStr).addFormattedString(object(fragment));
        } else {
            // A copy, since the sink may have the slots emptied before it reads the text.
            phrase = mItems.at(at(Index));
            object(formattedStr).Add(phrase);
        }
    });
}

/// The text of a slot. The caller's variable is used for all slots, so that few need memory of their own.
void outputTemplate::readPhrase(std::int16_t Index, Text& phrase) const {
    if (mReferenceItems.at(at(Index)).isFormatted) {
        const OutputSinkRef fragment = mFormattedItems.at(at(Index));
        phrase = object(fragment).toString();
    } else {
        phrase = mItems.at(at(Index));
    }
}

/// The first slot from `from` on that is not blank; the virtual slot behind the last when there is none.
std::int16_t outputTemplate::nextFilled(std::int16_t from) const {
    std::int16_t slot = from;
    while (slot <= mMaxReferenceItems) {
        const std::size_t known = std::min(mItems.size(), mReferenceItems.size());
        if (!VBWPROTECTOR::ofThisApartment().isConcerned() && at(slot) < known) {
            // A look at a plain slot that nobody is told needs no report.
            const ReferenceItem* const layout = mReferenceItems.data();
            const Text* const items = mItems.data();
            std::size_t i = at(slot);
            while (i < known && !layout[i].isFormatted && items[i].empty()) {
                ++i;
            }
            slot = static_cast<std::int16_t>(i);
            if (i == known || !layout[i].isFormatted) {
                return slot;
            }
        }
        if (!isBlank(slot)) {
            return slot;
        }
        ++slot;
    }
    return slot;
}

void outputTemplate::dumpVariables(VBWPROTECTOR& report) const {
    std::vector<Text> referenceItems;
    for (const ReferenceItem& item : mReferenceItems) {
        referenceItems.push_back(
            concatenate({item.isFormatted ? TextView(u"formatted") : TextView(u"plain"), u"; ",
                         summary(item.bibliographySeparators), u"; ", summary(item.footnoteSeparators), u"; ",
                         summary(item.checkBibliographySeparators), u"; ", summary(item.checkFootnoteSeparators)}));
    }
    // Held, since the host may replace them between two of the reports.
    const OutputSinkRef formattedStr = mFormattedStr;
    const std::vector<OutputSinkRef> fragments = mFormattedItems;
    report.vbwReportVariable(u"mMaxReferenceItems", mMaxReferenceItems);
    report.vbwReportVariable(u"mReferenceItems", referenceItems);
    report.vbwReportVariable(u"mIndexToFormatted", *mIndexToFormatted);
    report.vbwReportVariable(u"mReferenceItemsInitialized", mReferenceItemsInitialized);
    report.vbwReportVariable(u"mItems", mItems);
    report.vbwReportVariable(u"mSeparatorFonts", mSeparatorFonts);
    report.vbwReportVariable(u"mFormattedStr", formattedStr);
    report.vbwReportVariable(u"mFormattedItems", fragments);
}

void layOut(outputTemplate& assembly, std::span<const SlotRow> rows, std::span<const TextView> styleTexts) {
    assembly.Reset(static_cast<std::int16_t>(rows.size() - 1));
    for (std::size_t slot = 0; slot < rows.size(); ++slot) {
        assembly.Add(static_cast<std::int16_t>(slot), rows[slot].isFormatted(), false,
                     rows[slot].separators(styleTexts));
    }
}

}  // namespace quorvel
