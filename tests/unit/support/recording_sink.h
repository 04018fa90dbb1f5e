#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/output_sink.h"
#include "core/run_time_error.h"

namespace quorvel {

/// The host's formatted-text object as tests need it: it remembers what was written, fails when it
/// is told to, and can act upon its caller in the middle of a call.
///
/// `Clone` and `BuildNewFormattedString` give sinks of the same family: calls are counted, and fail,
/// over the whole family.
class RecordingSink final : public OutputSink {
    struct Family {
        int calls = 0;
        int failAt = 0;
        bool isActing = false;
        std::function<void()> action;
        std::function<void()> lastAction;

        /// Acts, unless that is what it does already. A copy, since the action may set another one.
        void act(std::function<void()> what) {
            if (what && !isActing) {
                isActing = true;
                what();
                isActing = false;
            }
        }
    };

public:
    /// What one `Add` wrote.
    struct Phrase {
        Text text;
        std::int32_t font = kPlain;
        friend bool operator==(const Phrase&, const Phrase&) = default;
    };

    RecordingSink() : RecordingSink(std::make_shared<Family>()) {}
    /// A sink of the same family.
    explicit RecordingSink(std::shared_ptr<Family> family) : mFamily(std::move(family)) {}
    ~RecordingSink() override { mFamily->act(mFamily->lastAction); }

    const std::vector<Phrase>& phrases() const { return mPhrases; }
    Text plain() const {
        Text text;
        for (const Phrase& phrase : mPhrases) {
            text += phrase.text;
        }
        return text;
    }

    /// How often the host's members of the family have been called.
    int calls() const { return mFamily->calls; }
    /// The n-th call to the family from now on (1: the next one) raises an error; 0: none does.
    void failAt(int call) { mFamily->failAt = call == 0 ? 0 : mFamily->calls + call; }
    /// What the host does in the middle of each call to the family; calls that it causes itself do not
    /// set it off again.
    void onCall(std::function<void()> action) { mFamily->action = std::move(action); }
    /// The same for the end of each of the family.
    void onEnd(std::function<void()> action) { mFamily->lastAction = std::move(action); }

    void Add(TextView text) override { Add(text, kPlain); }
    void Add(TextView text, std::int32_t font) override {
        // The host may act before it reads the text, which its caller has to keep until then.
        called();
        mPhrases.push_back({Text(text), font});
    }
    void addFormattedString(const OutputSink& fragment) override {
        called();
        const auto* other = dynamic_cast<const RecordingSink*>(&fragment);
        if (other == nullptr) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        const std::vector<Phrase> phrases = other->mPhrases;
        mPhrases.insert(mPhrases.end(), phrases.begin(), phrases.end());
    }
    OutputSinkRef Clone() const override {
        called();
        auto clone = std::make_shared<RecordingSink>(mFamily);
        clone->mPhrases = mPhrases;
        return clone;
    }
    void Reset() override {
        called();
        mPhrases.clear();
    }
    OutputSinkRef BuildNewFormattedString() const override {
        called();
        return std::make_shared<RecordingSink>(mFamily);
    }
    Text toString() const override {
        called();
        return plain();
    }
    /// No real RTF, but nothing that could pass for the plain text: each phrase as "{\fN text}".
    Text toRTFString() const override {
        called();
        Text text;
        for (const Phrase& phrase : mPhrases) {
            const std::string font = std::to_string(phrase.font);
            text += u"{\\f" + Text(font.begin(), font.end()) + u" " + phrase.text + u"}";
        }
        return text;
    }
    bool IsEmpty() const override {
        called();
        return plain().empty();
    }
    std::int16_t removeQuoteFromLastPhrase() override {
        called();
        if (mPhrases.empty()) {
            return kPlain;
        }
        Phrase& last = mPhrases.back();
        constexpr TextView kClosingMarks = u"\u201D\u2019\"";
        if (!last.text.empty() && kClosingMarks.find(last.text.back()) != TextView::npos) {
            last.text.pop_back();
        }
        return static_cast<std::int16_t>(last.font);
    }
    void PageIndex(std::int32_t value) override {
        called();
        mPageIndex = value;
    }
    /// What was left there; -1 when nothing was.
    std::int32_t pageIndex() const { return mPageIndex; }

private:
    void called() const {
        Family& family = *mFamily;
        ++family.calls;
        family.act(family.action);
        if (family.calls == family.failAt) {
            throw RuntimeError(ErrorNumber::AutomationError, u"The sink was told to fail.", nullptr);
        }
    }

    std::vector<Phrase> mPhrases;
    std::int32_t mPageIndex = -1;
    std::shared_ptr<Family> mFamily;
};

}  // namespace quorvel
