#pragma once

#include <memory>

#include "elements/edition/edition.h"
#include "host/adapters/element_adapter.h"
#include "host/com/element_access.h"

namespace quorvel::host {

/// The record of a first publication as the host sees it; it lives as long as somebody holds it.
class EditionRecordAdapter final : public ComObject<_EditionBookChapterYear> {
public:
    explicit EditionRecordAdapter(std::shared_ptr<EditionBookChapterYear> record) : mRecord(std::move(record)) {}

    STDMETHODIMP get_Title(BSTR* result) override {
        return call(result, [&] { return mRecord->Title; });
    }
    STDMETHODIMP put_Title(BSTR Title) override {
        return call([&] { mRecord->Title = view(Title); });
    }
    STDMETHODIMP get_PublisherOrNumber(BSTR* result) override {
        return call(result, [&] { return mRecord->PublisherOrNumber; });
    }
    STDMETHODIMP put_PublisherOrNumber(BSTR PublisherOrNumber) override {
        return call([&] { mRecord->PublisherOrNumber = view(PublisherOrNumber); });
    }
    STDMETHODIMP get_PlaceOrVolume(BSTR* result) override {
        return call(result, [&] { return mRecord->PlaceOrVolume; });
    }
    STDMETHODIMP put_PlaceOrVolume(BSTR PlaceOrVolume) override {
        return call([&] { mRecord->PlaceOrVolume = view(PlaceOrVolume); });
    }
    STDMETHODIMP get_Year(BSTR* result) override {
        return call(result, [&] { return mRecord->Year; });
    }
    STDMETHODIMP put_Year(BSTR Year) override {
        return call([&] { mRecord->Year = view(Year); });
    }
    STDMETHODIMP get_Page(BSTR* result) override {
        return call(result, [&] { return mRecord->Page; });
    }
    STDMETHODIMP put_Page(BSTR Page) override {
        return call([&] { mRecord->Page = view(Page); });
    }
    STDMETHODIMP get_author(BSTR* result) override {
        return call(result, [&] { return mRecord->author; });
    }
    STDMETHODIMP put_author(BSTR author) override {
        return call([&] { mRecord->author = view(author); });
    }
    STDMETHODIMP get_isReprintBook(VARIANT_BOOL* result) override {
        return call(result, [&] { return mRecord->isReprintBook; });
    }
    STDMETHODIMP put_isReprintBook(VARIANT_BOOL isReprintBook) override {
        return call([&] { mRecord->isReprintBook = asBool(isReprintBook); });
    }
    STDMETHODIMP get_isSpecialIssue(VARIANT_BOOL* result) override {
        return call(result, [&] { return mRecord->isSpecialIssue; });
    }
    STDMETHODIMP put_isSpecialIssue(VARIANT_BOOL isSpecialIssue) override {
        return call([&] { mRecord->isSpecialIssue = asBool(isSpecialIssue); });
    }
    STDMETHODIMP get_chapterOrArticleTitle(BSTR* result) override {
        return call(result, [&] { return mRecord->chapterOrArticleTitle; });
    }
    STDMETHODIMP put_chapterOrArticleTitle(BSTR chapterOrArticleTitle) override {
        return call([&] { mRecord->chapterOrArticleTitle = view(chapterOrArticleTitle); });
    }
    STDMETHODIMP get_AuthorType(BSTR* result) override {
        return call(result, [&] { return mRecord->AuthorType; });
    }
    STDMETHODIMP put_AuthorType(BSTR AuthorType) override {
        return call([&] { mRecord->AuthorType = view(AuthorType); });
    }
    STDMETHODIMP get_TitleType(BSTR* result) override {
        return call(result, [&] { return mRecord->TitleType; });
    }
    STDMETHODIMP put_TitleType(BSTR TitleType) override {
        return call([&] { mRecord->TitleType = view(TitleType); });
    }

private:
    std::shared_ptr<EditionBookChapterYear> mRecord;
};

/// `OutputTemplateEdition` as the host sees it.
class EditionAdapter final : public AssembledElementAdapter<_OutputTemplateEdition, OutputTemplateEdition> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(LONG format, IDispatch* pageTemplate) override {
        return call([&] { mElement->Reset({format, ElementAccess::elementOf<OutputTemplatePage>(pageTemplate)}); });
    }
    STDMETHODIMP get_format(LONG* result) override {
        return call(result, [&] { return mElement->format(); });
    }
    STDMETHODIMP get_isNumberedOrNamedEdition(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isNumberedOrNamedEdition(); });
    }
    STDMETHODIMP get_EditionBookChapterYear(IDispatch** result) override {
        return call(result, [&] { return adapterOf<EditionRecordAdapter>(mElement->EditionBookChapterYear()); });
    }
    STDMETHODIMP clearEditionBookChapterYear() override {
        return call([&] { mElement->clearEditionBookChapterYear(); });
    }
    STDMETHODIMP ToMLANonTitleString(BSTR* result) override {
        return call(result, [&] { return mElement->ToMLANonTitleString(); });
    }
    STDMETHODIMP get_oldAuthor(BSTR* result) override {
        return call(result, [&] { return mElement->oldAuthor(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP get_NumberedEdition(BSTR* result) override {
        return call(result, [&] { return mElement->NumberedEdition(); });
    }
    STDMETHODIMP put_NumberedEdition(BSTR theVal) override {
        return call([&] { mElement->NumberedEdition(view(theVal)); });
    }
    STDMETHODIMP get_NamedEdition(BSTR* result) override {
        return call(result, [&] { return mElement->NamedEdition(); });
    }
    STDMETHODIMP put_NamedEdition(BSTR theVal) override {
        return call([&] { mElement->NamedEdition(view(theVal)); });
    }
    STDMETHODIMP ParseReprintOrPaperbackEdition(BSTR* text) override {
        return call([&] { mElement->ParseReprintOrPaperbackEdition(InOutText(text)); });
    }
    STDMETHODIMP get_EditionType(SHORT* result) override {
        return call(result, [&] { return mElement->EditionType(); });
    }
    STDMETHODIMP put_EditionType(SHORT EditionType) override {
        return call([&] { mElement->EditionType(EditionType); });
    }
};

}  // namespace quorvel::host
