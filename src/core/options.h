#pragma once

#include <array>
#include <cstddef>
#include <tuple>

#include "core/trace_value.h"

/// The options of an element as one value: a record, and a table of its members under the names that hosts
/// and style files use. The table feeds the report of `Reset` and whatever reads or copies options by name;
/// its order is that of the arguments of `Reset`.
///
///   inline constexpr std::tuple kYearOptions{
///       Option{u"circa", &YearOptions::circa},
///   };
namespace quorvel {

template <class Record, class Type>
struct Option {
    Name name;
    Type Record::*member;
};

template <class Literal, class Record, class Type>
Option(Literal, Type Record::*) -> Option<Record, Type>;

/// The options as the parameters of a report, borrowed from the record.
template <class Record, class... Types>
std::array<Parameter, sizeof...(Types)> reported(const std::tuple<Option<Record, Types>...>& table,
                                                 const Record& options) {
    return std::apply(
        [&](const auto&... option) {
            return std::array<Parameter, sizeof...(Types)>{Parameter{option.name, options.*option.member}...};
        },
        table);
}

}  // namespace quorvel
