#include "elements/citation/fields.h"

namespace quorvel {

CitationFieldIndexes::CitationFieldIndexes(const KeyToInternalIndex& keys) {
    for (std::size_t i = 0; i < mIndexes.size(); ++i) {
        if (keys.has(kCitationKeys[i].key)) {
            mIndexes[i] = keys.item(kCitationKeys[i].key);
        }
    }
}

CitationFields CitationFieldIndexes::read(const ReferenceModel& model) const {
    CitationFields fields;
    for (std::size_t i = 0; i < mIndexes.size(); ++i) {
        if (mIndexes[i] != kNoField) {
            fields.*kCitationKeys[i].field = model.value(mIndexes[i]);
        }
    }
    return fields;
}

void CitationFieldIndexes::write(ReferenceModel& model, Text CitationFields::*field, TextView text) const {
    for (std::size_t i = 0; i < mIndexes.size(); ++i) {
        if (kCitationKeys[i].field == field && mIndexes[i] != kNoField) {
            model.value(mIndexes[i], text);
        }
    }
}

}  // namespace quorvel
