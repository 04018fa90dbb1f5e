#pragma once

#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "core/reference_model.h"
#include "core/run_time_error.h"

namespace quorvel {

/// The host's model of one reference as tests need it: it remembers which fields were read and can act upon
/// the library in the middle of a call. A field that it does not have is error 438.
class RecordingModel final : public ReferenceModel {
public:
    std::map<std::int16_t, Text> fields;
    mutable std::vector<std::int16_t> read;
    std::function<void()> onRead;

    explicit RecordingModel(std::map<std::int16_t, Text> theFields = {}) : fields(std::move(theFields)) {}

    Text value(std::int16_t index) const override {
        read.push_back(index);
        if (onRead) {
            onRead();
        }
        const auto found = fields.find(index);
        if (found == fields.end()) {
            throw RuntimeError(ErrorNumber::NoSuchMember);
        }
        return found->second;
    }
    void value(std::int16_t index, TextView text) override { fields[index] = Text(text); }
};

/// The host's dictionary: names in the order of their indexes, from 1.
class NumberedKeys final : public KeyToInternalIndex {
public:
    explicit NumberedKeys(std::vector<Text> keys) : mKeys(std::move(keys)) {}

    std::int16_t item(TextView key) const override {
        for (std::size_t i = 0; i < mKeys.size(); ++i) {
            if (mKeys[i] == key) {
                return static_cast<std::int16_t>(i + 1);
            }
        }
        return 0;
    }
    bool has(TextView key) const override { return item(key) != 0; }

private:
    std::vector<Text> mKeys;
};

}  // namespace quorvel
