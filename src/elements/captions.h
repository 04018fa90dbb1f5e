#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "core/text.h"

namespace quorvel {

/// A type as a reference stores it and the caption under which a form shows it.
struct Caption {
    TextView type;
    TextView caption;
};

/// The caption of a type. A type that the table does not have is its own caption.
template <std::size_t N>
Text captionOf(TextView type, const Caption (&table)[N]) {
    const auto* const row =
        std::find_if(std::begin(table), std::end(table), [&](const Caption& entry) { return entry.type == type; });
    return Text(row != std::end(table) ? row->caption : type);
}

/// The reverse: the type of a caption, or the caption itself.
template <std::size_t N>
Text typeOf(TextView caption, const Caption (&table)[N]) {
    const auto* const row = std::find_if(std::begin(table), std::end(table),
                                         [&](const Caption& entry) { return entry.caption == caption; });
    return Text(row != std::end(table) ? row->type : caption);
}

}  // namespace quorvel
