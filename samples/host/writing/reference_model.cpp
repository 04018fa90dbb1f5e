#include "writing/reference_model.h"

namespace sample {

ReferenceModel::ReferenceModel() {
    addMethod(L"value", [this](const Arguments& arguments, VARIANT& result) {
        result = Variant(value(arguments.number(0))).release();
        return S_OK;
    });
    addSetter(L"value", [this](const Arguments& arguments, VARIANT&) {
        set(arguments.number(0), arguments.text(1));
        return S_OK;
    });
}

std::wstring ReferenceModel::value(std::int32_t index) const {
    const auto found = mValues.find(index);
    return found == mValues.end() ? std::wstring() : found->second;
}

}  // namespace sample
