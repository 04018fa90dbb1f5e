#include "host/main2.h"

#include <memory>

#include "core/procedure.h"
#include "host/adapters/citation_adapter.h"
#include "host/adapters/model_adapter.h"
#include "host/classes.h"
#include "host/com/late_bound_object.h"
#include "host/sub_form_proxy.h"

namespace quorvel::host {

void Main2::lastOfThreadEnds() noexcept {
    VBWPROTECTOR::ofThisApartment().vbwExitThread();
}

STDMETHODIMP Main2::buildSubformProxy(IDispatch** result) {
    return call(result, [&] { return procedure(*this, u"buildSubformProxy", kNoParameters, make<SubFormProxy>); });
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
            if (!element) {
                const Text subject = concatenate({u"no class has the element type code ", decimal(code)});
                throw RuntimeError(ErrorNumber::ObjectNotSet, descriptionOf(ErrorNumber::ObjectNotSet, subject));
            }
            LateBoundObject(element.get(), u"the element").call(L"Initialize", sink.get());
            return element;
        });
    });
}

}  // namespace quorvel::host
