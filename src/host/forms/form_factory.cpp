#include "host/forms/form_factory.h"

namespace quorvel::host {

namespace {

// The three kinds of title.
constexpr std::int16_t kFirstTitle = 1;
constexpr std::int16_t kLastTitle = 3;

}  // namespace

ComPtr<IDispatch> makeForm(std::int16_t /*whichType*/) {
    return {};  // There are no forms yet.
}

std::int16_t formClassOf(std::int16_t whichType) {
    return whichType >= kFirstTitle && whichType <= kLastTitle ? kFirstTitle : whichType;
}

}  // namespace quorvel::host
