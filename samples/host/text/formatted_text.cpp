#include "text/formatted_text.h"

#include "text/text_io.h"

namespace sample {

namespace {

constexpr std::wstring_view kClosingMarks = L"\u201D\u2019\"";

void appendFragment(FormattedText& text, const ComPointer<IDispatch>& fragment) {
    if (const auto* own = dynamic_cast<FormattedText*>(DispatchObject::behind(fragment.get()))) {
        text.add(*own);
    } else {
        throw ComError{DISP_E_TYPEMISMATCH, L"The fragment is not a formatted text of this host."};
    }
}

VARIANT objectResult(const ComPointer<FormattedText>& object) {
    return Variant(object.get()).release();
}

}  // namespace

std::wstring withoutLooseEnds(std::wstring_view text) {
    std::wstring result;
    for (const wchar_t character : text) {
        const bool isSecondBlank = character == L' ' && (result.empty() || result.back() == L' ');
        if (isSecondBlank) continue;
        if (character == L';' && result.ends_with(L' ')) result.pop_back();
        result += character;
    }
    const std::size_t last = result.find_last_not_of(L' ');
    result.resize(last == std::wstring::npos ? 0 : last + 1);
    if (result.ends_with(L',')) result.pop_back();
    return result;
}

FormattedText::FormattedText() {
    addMethod(L"Add", [this](const Arguments& arguments, VARIANT&) {
        add(arguments.text(0), arguments.has(1) ? arguments.number(1) : kPlain);
        return S_OK;
    });
    addMethod(L"addFormattedString", [this](const Arguments& arguments, VARIANT&) {
        appendFragment(*this, arguments.object(0));
        return S_OK;
    });
    addMethod(L"Clone", [this](const Arguments&, VARIANT& result) {
        result = objectResult(clone());
        return S_OK;
    });
    addMethod(L"BuildNewFormattedString", [](const Arguments&, VARIANT& result) {
        result = objectResult(makeObject<FormattedText>());
        return S_OK;
    });
    addMethod(L"Reset", [this](const Arguments&, VARIANT&) {
        reset();
        return S_OK;
    });
    addMethod(L"IsEmpty", [this](const Arguments&, VARIANT& result) {
        result = Variant(isEmpty()).release();
        return S_OK;
    });
    addMethod(L"toString", [this](const Arguments&, VARIANT& result) {
        result = Variant(toString()).release();
        return S_OK;
    });
    addMethod(L"toRTFString", [this](const Arguments&, VARIANT& result) {
        result = Variant(fromUtf8(toRtf())).release();
        return S_OK;
    });
    addMethod(L"removeQuoteFromLastPhrase", [this](const Arguments&, VARIANT& result) {
        result = Variant(removeQuoteFromLastPhrase()).release();
        return S_OK;
    });
    addMethod(L"lastPhraseFont", [this](const Arguments&, VARIANT& result) {
        result = Variant(lastPhraseFont()).release();
        return S_OK;
    });
    addMethod(L"PageIndex", [this](const Arguments&, VARIANT& result) {
        result = Variant(mPageIndex).release();
        return S_OK;
    });
    addSetter(L"PageIndex", [this](const Arguments& arguments, VARIANT&) {
        mPageIndex = arguments.number(0);
        return S_OK;
    });
}

void FormattedText::add(std::wstring_view text, std::int32_t font) {
    if (text.empty()) return;
    if (mPhrases.empty() || mPhrases.back().font != font) mPhrases.push_back({L"", font});
    mPhrases.back().text += text;
}

void FormattedText::add(const FormattedText& fragment) {
    // A copy, since a text may be appended to itself.
    const std::vector<Phrase> phrases = fragment.mPhrases;
    for (const Phrase& phrase : phrases) add(phrase.text, phrase.font);
}

ComPointer<FormattedText> FormattedText::clone() const {
    ComPointer<FormattedText> copy = makeObject<FormattedText>();
    copy->mPhrases = mPhrases;
    copy->mPageIndex = mPageIndex;
    return copy;
}

void FormattedText::reset() {
    mPhrases.clear();
    mPageIndex = 0;
}

std::wstring FormattedText::toString() const {
    std::wstring text;
    for (const Phrase& phrase : mPhrases) text += phrase.text;
    return text;
}

void FormattedText::trim() {
    while (!mPhrases.empty()) {
        std::wstring& text = mPhrases.back().text;
        text.resize(text.find_last_not_of(L" ,") + 1);
        if (!text.empty()) break;
        mPhrases.pop_back();
    }
    while (!mPhrases.empty()) {
        std::wstring& text = mPhrases.front().text;
        text.erase(0, text.find_first_not_of(L' '));
        if (!text.empty()) break;
        mPhrases.erase(mPhrases.begin());
    }
}

std::int16_t FormattedText::removeQuoteFromLastPhrase() {
    if (mPhrases.empty()) return kPlain;
    Phrase& last = mPhrases.back();
    const wchar_t end = last.text.back();
    if (kClosingMarks.find(end) == std::wstring_view::npos) return kPlain;
    const auto font = static_cast<std::int16_t>(last.font);
    last.text.pop_back();
    if (last.text.empty()) mPhrases.pop_back();
    return font;
}

}  // namespace sample
