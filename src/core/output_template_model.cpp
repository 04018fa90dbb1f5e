#include "core/output_template_model.h"

#include <algorithm>
#include <array>

#include "core/procedure.h"

namespace quorvel {

namespace {

constexpr TextView kAlternatives = u"||";
constexpr TextView kEquals = u"=";
constexpr TextView kCallbackForChecking = u"__CALLBACK_FOR_CHECKING__";
constexpr TextView kTrue = u"True";
constexpr TextView kFullStop = u".";
constexpr TextView kBeforeNotes = u"  ";

/// Whether one of the alternatives, joined by "||", is exactly this text.
bool isOneOf(TextView alternatives, TextView text) {
    while (true) {
        const std::size_t end = alternatives.find(kAlternatives);
        if (alternatives.substr(0, end) == text) {
            return true;
        }
        if (end == TextView::npos) {
            return false;
        }
        alternatives.remove_prefix(end + kAlternatives.size());
    }
}

}  // namespace

void OutputTemplateModel::Initialize(const OutputSinkRef& formattedStr,
                                     const KeyToInternalIndexRef& keyToInternalIndex) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}, {u"keyToInternalIndex", keyToInternalIndex}},
              [&] {
                  replace(mKeyToInternalIndex, keyToInternalIndex);
                  mOutputTemplate = std::make_shared<outputTemplate>();
                  held(mOutputTemplate)->Initialize(formattedStr);
              });
}

void OutputTemplateModel::Reset(std::int16_t maxElementIndex, TextView blankStrings, std::int16_t pageKey) {
    procedure(*this, u"Reset",
              {{u"maxElementIndex", maxElementIndex}, {u"blankStrings", blankStrings}, {u"pageKey", pageKey}}, [&] {
                  mBlankStrings = blankStrings.empty() ? std::vector<Text>() : split(blankStrings, kAlternatives);
                  mCheckingValues.assign(kMostSlots, {});
                  mUboundCheckingValues = 0;
                  mPageIndex = pageKey;
                  held(mOutputTemplate)->Reset(maxElementIndex);
              });
}

void OutputTemplateModel::Add(std::int16_t Index, bool isFormatted, TextView checkingKey,
                              const std::vector<Text>& separators) {
    procedure(
        *this, u"Add",
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"checkingKey", checkingKey}, {u"separators", separators}},
        [&] {
            const bool isChecking = !checkingKey.empty();
            CheckingValue condition;
            if (isChecking) {
                // What stands behind a second "=" is no part of the value; a key alone is no condition.
                const std::vector<Text> pieces = split(checkingKey, kEquals);
                if (pieces.size() > 1) {
                    condition = {object(held(mKeyToInternalIndex)).item(pieces[0]), pieces[1]};
                }
            }
            const std::int16_t due = mUboundCheckingValues;
            mCheckingValues.at(static_cast<std::size_t>(due)) = std::move(condition);
            ++mUboundCheckingValues;
            held(mOutputTemplate)->Add(Index, isFormatted, isChecking, separators);
            if (Index != due) {
                const Text subject =
                    concatenate({u"slot ", decimal(Index), u" comes where slot ", decimal(due), u" is due"});
                throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                                   descriptionOf(ErrorNumber::SubscriptOutOfRange, subject));
            }
        });
}

void OutputTemplateModel::ToFormattedString(const OutputSinkRef& formattedStr, const ImplementorRef& implementor,
                                            const ReferenceModelRef& model, bool shortenedVersion, bool isFootnote) {
    const auto parameters = [&] {
        return std::array{Parameter{u"formattedStr", formattedStr},
                          Parameter{u"implementor", implementor ? implementor->hostObject() : nullptr},
                          Parameter{u"model", model}, Parameter{u"shortenedVersion", shortenedVersion},
                          Parameter{u"isFootnote", isFootnote}};
    };
    procedure(*this, u"ToFormattedString", parameters, [&] {
        const std::shared_ptr<outputTemplate> assembly = held(mOutputTemplate);
        OutputSink& sink = object(formattedStr);
        const std::vector<bool> checking = checkingArray(object(implementor), model, isFootnote);
        assembly->ResetReferenceItems();
        assembly->ToFormattedString(formattedStr, *implementor, shortenedVersion, isFootnote, checking);
        const Text notes = getNotes(model, isFootnote);
        if (!notes.empty() && notes != kFullStop) {
            sink.Add(concatenate({kBeforeNotes, notes}));
        } else if (!mBlankStrings.empty() && isBlankString(sink.toString())) {
            sink.Reset();
        }
        sink.PageIndex(2 * std::int32_t{mPageIndex});
    });
}

/// Which slots take their checking separators.
std::vector<bool> OutputTemplateModel::checkingArray(Implementor& implementor, const ReferenceModelRef& model,
                                                     bool isFootnote) const {
    std::vector<bool> checking(static_cast<std::size_t>(mUboundCheckingValues) + 1);
    bool asksImplementor = false;
    for (std::size_t k = 0; k < std::min(mCheckingValues.size(), checking.size()); ++k) {
        if (mCheckingValues[k].value.empty()) {
            continue;
        }
        // A copy, since the model's answer may be a new layout.
        const CheckingValue condition = mCheckingValues[k];
        if (condition.value == kCallbackForChecking) {
            asksImplementor = true;
        } else {
            checking.at(k) = isOneOf(condition.value, object(model).value(condition.key));
        }
    }
    if (asksImplementor) {
        implementor.initChecking(checking, isFootnote);
    }
    return checking;
}

Text OutputTemplateModel::getNotes(const ReferenceModelRef& model, bool isFootnote) const {
    return procedure(*this, u"getNotes", {{u"model", model}, {u"isFootnote", isFootnote}}, [&]() -> Text {
        if (!isFootnote || object(model).value(kHasNoteField) != kTrue) {
            return {};
        }
        Text notes = model->value(kNoteField);
        if (!notes.empty() && !endsWith(notes, kFullStop)) {
            notes += kFullStop;
        }
        return notes;
    });
}

bool OutputTemplateModel::isBlankString(TextView output) const {
    return std::find(mBlankStrings.begin(), mBlankStrings.end(), output) != mBlankStrings.end();
}

void OutputTemplateModel::dumpVariables(VBWPROTECTOR& report) const {
    std::vector<Text> checkingValues;
    for (const CheckingValue& condition : mCheckingValues) {
        checkingValues.push_back(concatenate({decimal(condition.key), kEquals, condition.value}));
    }
    // Held, since the host may replace it between two of the reports.
    const KeyToInternalIndexRef keyToInternalIndex = mKeyToInternalIndex;
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mKeyToInternalIndex", keyToInternalIndex);
    report.vbwReportVariable(u"mBlankStrings", mBlankStrings);
    report.vbwReportVariable(u"mPageIndex", mPageIndex);
    report.vbwReportVariable(u"mCheckingValues", checkingValues);
    report.vbwReportVariable(u"mUboundCheckingValues", mUboundCheckingValues);
}

}  // namespace quorvel
