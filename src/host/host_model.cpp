#include "host/host_model.h"

#include "host/com/answers.h"

namespace quorvel::host {

ReferenceModelRef HostModel::of(IDispatch* model) {
    return model != nullptr ? std::make_shared<HostModel>(model) : nullptr;
}

Text HostModel::value(std::int16_t index) const {
    return textAnswer(mObject.call(L"value", index));
}

void HostModel::value(std::int16_t index, TextView text) {
    mObject.put(L"value", index, text);
}

KeyToInternalIndexRef HostKeyToInternalIndex::of(IDispatch* dictionary) {
    return dictionary != nullptr ? std::make_shared<HostKeyToInternalIndex>(dictionary) : nullptr;
}

std::int16_t HostKeyToInternalIndex::item(TextView key) const {
    return numberAnswer(mObject.call(L"Item", key));
}

}  // namespace quorvel::host
