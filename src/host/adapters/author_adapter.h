#pragma once

#include "elements/author/author.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateAuthor` as the host sees it.
class AuthorAdapter final : public AssembledElementAdapter<_OutputTemplateAuthor, OutputTemplateAuthor> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(VARIANT_BOOL SupportAnonAndPseudoAuthors, VARIANT_BOOL SquareBracketIsForFirstName,
                       BSTR editorTags, BSTR andSeparator, VARIANT_BOOL twoAuthorsIsOnlyCaseHaveNoComma,
                       VARIANT_BOOL ReverseFirstOnFootnote, VARIANT_BOOL reverseSecondaryAuthors,
                       VARIANT_BOOL reversedAuthorUsesComma, VARIANT_BOOL reversedAuthorPostfixUsesComma,
                       short numAuthorsToTriggerEtAl, short numAuthorsToTriggerEtAlCitation,
                       short numAuthorsToTriggerEtAlMinimalString, short numAuthorsInEtAl,
                       short numAuthorsInEtAlMinimalString, VARIANT_BOOL etAlUsesElipses,
                       VARIANT_BOOL etAlInReferenceList, VARIANT_BOOL etAlHasComma, VARIANT_BOOL etAlCitationHasComma,
                       BSTR editorSeparator, VARIANT_BOOL initialsOnly, VARIANT_BOOL initialsUsePeriods,
                       VARIANT_BOOL semicolonBetweenGroupAuthors, VARIANT_BOOL supportsCompilerAndEditor) override {
        return call([&] {
            AuthorOptions options;
            options.SupportAnonAndPseudoAuthors = asBool(SupportAnonAndPseudoAuthors);
            options.SquareBracketIsForFirstName = asBool(SquareBracketIsForFirstName);
            options.editorTags = view(editorTags);
            options.andSeparator = view(andSeparator);
            options.twoAuthorsIsOnlyCaseHaveNoComma = asBool(twoAuthorsIsOnlyCaseHaveNoComma);
            options.ReverseFirstOnFootnote = asBool(ReverseFirstOnFootnote);
            options.reverseSecondaryAuthors = asBool(reverseSecondaryAuthors);
            options.reversedAuthorUsesComma = asBool(reversedAuthorUsesComma);
            options.reversedAuthorPostfixUsesComma = asBool(reversedAuthorPostfixUsesComma);
            options.numAuthorsToTriggerEtAl = numAuthorsToTriggerEtAl;
            options.numAuthorsToTriggerEtAlCitation = numAuthorsToTriggerEtAlCitation;
            options.numAuthorsToTriggerEtAlMinimalString = numAuthorsToTriggerEtAlMinimalString;
            options.numAuthorsInEtAl = numAuthorsInEtAl;
            options.numAuthorsInEtAlMinimalString = numAuthorsInEtAlMinimalString;
            options.etAlUsesElipses = asBool(etAlUsesElipses);
            options.etAlInReferenceList = asBool(etAlInReferenceList);
            options.etAlHasComma = asBool(etAlHasComma);
            options.etAlCitationHasComma = asBool(etAlCitationHasComma);
            options.editorSeparator = view(editorSeparator);
            options.initialsOnly = asBool(initialsOnly);
            options.initialsUsePeriods = asBool(initialsUsePeriods);
            options.semicolonBetweenGroupAuthors = asBool(semicolonBetweenGroupAuthors);
            options.supportsCompilerAndEditor = asBool(supportsCompilerAndEditor);
            mElement->Reset(options);
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<AuthorAdapter>(mElement->Clone()); });
    }
    STDMETHODIMP CloneForEditors(IDispatch** result) override {
        return call(result, [&] { return adapterOf<AuthorAdapter>(mElement->CloneForEditors()); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isMinimal,
                          VARIANT_BOOL isCitation, VARIANT_BOOL forceNoInitials, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result, [&] {
            return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isMinimal),
                                      asBool(isCitation), asBool(forceNoInitials), asBool(isRTF));
        });
    }
    STDMETHODIMP toCitationFormat(BSTR* form1, BSTR* form2) override {
        return call([&] { mElement->toCitationFormat(InOutText(form1), InOutText(form2)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr, VARIANT_BOOL residueAlreadyRemoved) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr), asBool(residueAlreadyRemoved)); });
    }
    STDMETHODIMP toKeywordList(VARIANT* result) override {
        return call(result, [&] { return mElement->toKeywordList(); });
    }
    STDMETHODIMP toMergedString(BSTR* result) override {
        return call(result, [&] { return mElement->toMergedString(); });
    }
    STDMETHODIMP isSameAuthor(BSTR str1, BSTR str2, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isSameAuthor(view(str1), view(str2)); });
    }
    STDMETHODIMP get_authors(VARIANT* result) override {
        return call(result, [&] { return mElement->authors(); });
    }
    STDMETHODIMP put_authors(VARIANT values) override {
        return call([&] { trapped(*mElement, u"authors[Let]", [&] { mElement->authors(textsOf(values)); }); });
    }
    STDMETHODIMP get_authorsForQVDb(BSTR* result) override {
        return call(result, [&] { return mElement->authorsForQVDb(); });
    }
    STDMETHODIMP get_hasDiscussant(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->hasDiscussant(); });
    }
    STDMETHODIMP get_Anthologies(VARIANT index, VARIANT* result) override {
        return call(result, [&] {
            Variant roles;
            trapped(*mElement, u"Anthologies[Get]", [&] { roles = anthologies(index); });
            return roles;
        });
    }
    STDMETHODIMP put_Anthologies(VARIANT index, VARIANT values) override {
        return call([&] { trapped(*mElement, u"Anthologies[Let]", [&] { setAnthologies(index, values); }); });
    }
    STDMETHODIMP get_editor(BSTR* result) override {
        return call(result, [&] { return mElement->editor(); });
    }
    STDMETHODIMP get_checkingArray(VARIANT* result) override {
        return call(result, [&] { return mElement->checkingArray(); });
    }
    STDMETHODIMP get_residue(BSTR* result) override {
        return call(result, [&] { return mElement->residue(); });
    }
    STDMETHODIMP put_residue(BSTR residue) override {
        return call([&] { mElement->residue(view(residue)); });
    }
    STDMETHODIMP get_LastNameFirstForAuthor1(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->LastNameFirstForAuthor1(); });
    }
    STDMETHODIMP get_isJapaneseOrChineseLastName(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isJapaneseOrChineseLastName(); });
    }
    STDMETHODIMP get_supportsCompilerAndEditor(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->supportsCompilerAndEditor(); });
    }
    STDMETHODIMP get_SupportAnonAndPseudoAuthors(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportAnonAndPseudoAuthors(); });
    }
    STDMETHODIMP get_SquareBracketIsForFirstName(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SquareBracketIsForFirstName(); });
    }
    STDMETHODIMP collapsePseudoToFirstName(BSTR firstAuthor, BSTR* result) override {
        return call(result, [&] { return mElement->collapsePseudoToFirstName(view(firstAuthor)); });
    }
    STDMETHODIMP convertCommaToSemicolon(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->convertCommaToSemicolon(view(text)); });
    }
    STDMETHODIMP ClearAuthors() override {
        return call([&] { mElement->ClearAuthors(); });
    }
    STDMETHODIMP isEmptyArrayAuthor(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isEmptyArrayAuthor(); });
    }
    STDMETHODIMP get_Pseudoname(BSTR* result) override {
        return call(result, [&] { return mElement->Pseudoname(); });
    }
    STDMETHODIMP put_Pseudoname(BSTR Pseudoname) override {
        return call([&] { mElement->Pseudoname(view(Pseudoname)); });
    }
    STDMETHODIMP get_AuthorType(short* result) override {
        return call(result, [&] { return mElement->AuthorType(); });
    }
    STDMETHODIMP put_AuthorType(short AuthorType) override {
        return call([&] { mElement->AuthorType(AuthorType); });
    }
    STDMETHODIMP get_HasEtAl(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->HasEtAl(); });
    }
    STDMETHODIMP put_HasEtAl(VARIANT_BOOL HasEtAl) override {
        return call([&] { mElement->HasEtAl(asBool(HasEtAl)); });
    }
    STDMETHODIMP get_Discussant(BSTR* result) override {
        return call(result, [&] { return mElement->Discussant(); });
    }
    STDMETHODIMP put_Discussant(BSTR Discussant) override {
        return call([&] { mElement->Discussant(view(Discussant)); });
    }
    STDMETHODIMP get_andSeparatorHasComma(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->andSeparatorHasComma(); });
    }
    STDMETHODIMP put_andSeparatorHasComma(VARIANT_BOOL andSeparatorHasComma) override {
        return call([&] { mElement->andSeparatorHasComma(asBool(andSeparatorHasComma)); });
    }
    STDMETHODIMP get_etAlText(BSTR* result) override {
        return call(result, [&] { return mElement->etAlText(); });
    }
    STDMETHODIMP put_etAlText(BSTR etAlText) override {
        return call([&] { mElement->etAlText(view(etAlText)); });
    }

private:
    /// One role for an index, all three without.
    Variant anthologies(const VARIANT& index) const {
        if (!isMissing(index)) {
            return Variant(mElement->Anthologies(numberOf(index)));
        }
        std::vector<Variant> roles;
        for (std::int16_t role = 0; role < OutputTemplateAuthor::kRoles; ++role) {
            roles.emplace_back(mElement->Anthologies(role));
        }
        return arrayOfVariants(std::move(roles));
    }
    void setAnthologies(const VARIANT& index, const VARIANT& values) {
        if (!isMissing(index)) {
            mElement->Anthologies(numberOf(index), flagOf(values));
            return;
        }
        std::int16_t role = 0;
        for (const Variant& value : elementsOf(values)) {
            mElement->Anthologies(role++, flagOf(value));
        }
    }
};

}  // namespace quorvel::host
