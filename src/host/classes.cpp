#include "host/classes.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "host/adapters/author_adapter.h"
#include "host/adapters/citation_adapter.h"
#include "host/adapters/date_time_adapter.h"
#include "host/adapters/edition_adapter.h"
#include "host/adapters/issue_adapter.h"
#include "host/adapters/keywords_adapter.h"
#include "host/adapters/medium_adapter.h"
#include "host/adapters/model_adapter.h"
#include "host/adapters/multi_vol_adapter.h"
#include "host/adapters/newspaper_adapter.h"
#include "host/adapters/online_adapter.h"
#include "host/adapters/page_adapter.h"
#include "host/adapters/place_adapter.h"
#include "host/adapters/publisher_adapter.h"
#include "host/adapters/refers_to_adapter.h"
#include "host/adapters/title_adapter.h"
#include "host/adapters/year_adapter.h"
#include "host/callback.h"
#include "host/interfaces.h"
#include "host/main2.h"
#include "host/sub_form_proxy.h"

namespace quorvel::host {

namespace {

constexpr std::int16_t kNone = -1;

struct LibraryClass {
    /// Null for a class that only `build` makes.
    const CLSID* clsid;
    /// The element type codes for which `build` makes it.
    std::array<std::int16_t, 3> types;
    ClassFactory::Create create;
};

// Every class, one a line.
// clang-format off
const LibraryClass kClasses[] = {
    {&CLSID_Main2, {kNone, kNone, kNone}, make<host::Main2>},
    {&CLSID_SubFormProxy, {kNone, kNone, kNone}, make<host::SubFormProxy>},
    {&CLSID_Callback, {kNone, kNone, kNone}, make<host::Callback>},
    {&CLSID_OutputTemplateModel, {kNone, kNone, kNone}, make<ModelAdapter>},
    {&CLSID_OutputTemplateCitation, {kNone, kNone, kNone}, make<CitationAdapter>},
    {&CLSID_OutputTemplateAuthor, {0, 9, kNone}, make<AuthorAdapter>},
    {&CLSID_OutputTemplateTitle, {1, 2, 3}, make<TitleAdapter>},
    {&CLSID_OutputTemplateNewspaper, {4, kNone, kNone}, make<NewspaperAdapter>},
    {&CLSID_OutputTemplatePublisher, {5, kNone, kNone}, make<PublisherAdapter>},
    {&CLSID_OutputTemplateYear, {6, kNone, kNone}, make<YearAdapter>},
    {&CLSID_OutputTemplatePage, {7, kNone, kNone}, make<PageAdapter>},
    {&CLSID_OutputTemplateEdition, {8, kNone, kNone}, make<EditionAdapter>},
    {&CLSID_OutputTemplateMultiVol, {10, kNone, kNone}, make<MultiVolAdapter>},
    {nullptr, {11, kNone, kNone}, make<IssueAdapter>},
    {&CLSID_OutputTemplateRefersTo, {12, kNone, kNone}, make<RefersToAdapter>},
    {&CLSID_OutputTemplateOnline, {13, kNone, kNone}, make<OnlineAdapter>},
    {&CLSID_OutputTemplateKeywords, {14, kNone, kNone}, make<KeywordsAdapter>},
    {&CLSID_OutputTemplatePlace, {15, kNone, kNone}, make<PlaceAdapter>},
    {&CLSID_OutputTemplateMedium, {16, kNone, kNone}, make<MediumAdapter>},
    {&CLSID_OutputTemplateDateTime, {17, kNone, kNone}, make<DateTimeAdapter>},
};
// clang-format on

template <class IsWanted>
ClassFactory::Create creatorWhere(IsWanted&& isWanted) {
    const auto* found = std::find_if(std::begin(kClasses), std::end(kClasses), isWanted);
    return found != std::end(kClasses) ? found->create : nullptr;
}

}  // namespace

ClassFactory::Create creatorOf(REFCLSID clsid) {
    return creatorWhere([&](const LibraryClass& row) { return row.clsid != nullptr && *row.clsid == clsid; });
}

ClassFactory::Create creatorOf(std::int16_t whichType) {
    return creatorWhere([&](const LibraryClass& row) {
        return whichType != kNone && std::find(row.types.begin(), row.types.end(), whichType) != row.types.end();
    });
}

}  // namespace quorvel::host
