#pragma once

#include <map>
#include <string>

#include "com/dispatch_object.h"

namespace sample {

/// The host's record of one reference, which the library reads by the indexes that the host has
/// given to its fields: `value(index)`. An index without a value reads as the empty text.
///
/// Two indexes have a fixed meaning for the library: 7 says whether the reference ends with a note
/// in footnotes ("True"), and 4 is that note.
class ReferenceModel final : public DispatchObject {
public:
    ReferenceModel();

    void set(std::int32_t index, std::wstring value) { mValues[index] = std::move(value); }
    void clear() { mValues.clear(); }
    std::wstring value(std::int32_t index) const;

private:
    std::map<std::int32_t, std::wstring> mValues;
};

}  // namespace sample
