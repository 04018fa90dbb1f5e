#include "host/host_model.h"

#include "core/run_time_error.h"
#include "host/com/answers.h"

namespace quorvel::host {

ReferenceModelRef HostModel::of(IDispatch* model) {
    return model != nullptr ? std::make_shared<HostModel>(model) : nullptr;
}

Text HostModel::value(std::int16_t index) const {
    return mObject.ask(textAnswer, L"value", index);
}

void HostModel::value(std::int16_t index, TextView text) {
    mObject.put(L"value", index, text);
}

KeyToInternalIndexRef HostKeyToInternalIndex::of(IDispatch* dictionary) {
    return dictionary != nullptr ? std::make_shared<HostKeyToInternalIndex>(dictionary) : nullptr;
}

std::int16_t HostKeyToInternalIndex::item(TextView key) const {
    return mObject.ask(numberAnswer, L"Item", key);
}

bool HostKeyToInternalIndex::has(TextView key) const {
    try {
        return mObject.ask(flagAnswer, L"Exists", key);
    } catch (const RuntimeError& error) {
        if (error.number() != static_cast<std::int32_t>(ErrorNumber::NoSuchMember)) {
            throw;
        }
    }
    return true;
}

}  // namespace quorvel::host
