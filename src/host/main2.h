#pragma once

#include "core/instrumented.h"
#include "host/com/com_object.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// The factory, the one class that the host creates by name: everything else it reaches from here.
class Main2 final : public ComObject<_Main2>, public Instrumented {
public:
    STDMETHODIMP buildSubformProxy(IDispatch** result) override;
    STDMETHODIMP buildModelTemplate(IDispatch** result) override;
    STDMETHODIMP buildCitationTemplate(IDispatch** result) override;
    STDMETHODIMP build(short* whichType, IDispatch** formattedString, IDispatch** result) override;

    TextView className() const override { return u"Main2"; }
    /// The class has no variables.
    void dumpVariables(VBWPROTECTOR& /*report*/) const override {}

    static void lastOfThreadEnds() noexcept;

private:
    ~Main2() override = default;

    CountedPerThread<Main2> mCounted;
};

}  // namespace quorvel::host
