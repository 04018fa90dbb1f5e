#include "host/main2.h"

#include <memory>

#include "core/procedure.h"
#include "host/adapters/citation_adapter.h"
#include "host/adapters/model_adapter.h"
#include "host/classes.h"
#include "host/adapters/date_time_adapter.h"
#include "host/adapters/keywords_adapter.h"
#include "host/adapters/medium_adapter.h"
#include "host/adapters/model_adapter.h"
#include "host/adapters/multi_vol_adapter.h"
#include "host/adapters/page_adapter.h"
#include "host/adapters/place_adapter.h"
#include "host/adapters/publisher_adapter.h"
#include "host/adapters/title_adapter.h"
#include "host/adapters/year_adapter.h"
#include "host/com/late_bound_object.h"

namespace quorvel::host {

namespace {

using Create = ComPtr<IDispatch> (*)();

struct ElementClass {
    std::int16_t whichType;
    Create create;
};

// The element type codes and their classes, one code a line. A code without a row makes nothing.
// clang-format off
constexpr ElementClass kElementClasses[] = {
    {0, make<AuthorAdapter>},
    {9, make<AuthorAdapter>},
    {1, make<TitleAdapter>},
    {2, make<TitleAdapter>},
    {3, make<TitleAdapter>},
    {15, make<PlaceAdapter>},
    {5, make<PublisherAdapter>},
    {10, make<MultiVolAdapter>},
    {14, make<KeywordsAdapter>},
    {16, make<MediumAdapter>},
    {17, make<DateTimeAdapter>},
    {7, make<PageAdapter>},
    {6, make<YearAdapter>},
};
// clang-format on

ComPtr<IDispatch> createElement(std::int16_t whichType) {
    const auto* row = std::find_if(std::begin(kElementClasses), std::end(kElementClasses),
                                   [&](const ElementClass& element) { return element.whichType == whichType; });
    return row != std::end(kElementClasses) ? row->create() : nullptr;
}

/// The class is not part of this library yet.
ComPtr<IDispatch> cannotCreate() {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
}

}  // namespace

void Main2::lastOfThreadEnds() noexcept {
    VBWPROTECTOR::ofThisApartment().vbwExitThread();
}

STDMETHODIMP Main2::buildSubformProxy(IDispatch** result) {
    return call(result, [&] { return procedure(*this, u"buildSubformProxy", kNoParameters, cannotCreate); });
}

STDMETHODIMP Main2::buildModelTemplate(IDispatch** result) {
    return call(result, [&] { return procedure(*this, u"buildModelTemplate", kNoParameters, make<ModelAdapter>); });
}

STDMETHODIMP Main2::buildCitationTemplate(IDispatch** result) {
    return call(result,
                [&] { return procedure(*this, u"buildCitationTemplate", kNoParameters, make<CitationAdapter>); });
}

STDMETHODIMP Main2::build(short* whichType, IDispatch** formattedString, IDispatch** result) {
    const std::int16_t code = whichType != nullptr ? *whichType : std::int16_t{-1};
    const ComPtr<IDispatch> sink(formattedString != nullptr ? *formattedString : nullptr);
    return call(result, [&] {
        const auto reported = std::make_shared<HostReference>(sink.get());
        return procedure(*this, u"build", {{u"whichType", code}, {u"formattedString", reported}}, [&] {
            const ClassFactory::Create create = creatorOf(code);
            ComPtr<IDispatch> element = create != nullptr ? create() : nullptr;
            // Late-bound on purpose: on the empty reference of an unknown code this is the error that is
            // reported.
            LateBoundObject(element.get()).call(L"Initialize", sink.get());
            return element;
        });
    });
}

}  // namespace quorvel::host
