#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/options.h"
#include "core/text.h"

namespace quorvel::test {

/// The options that the sample host passes in a style. Its style files are the one place that states them; what tests
/// and benchmarks want of a style they read from there.
class StyleFile {
public:
    /// One of "mla", "apa", "turabian", "ama", read once.
    static const StyleFile& of(std::string_view style);

    /// The options of an element; an object among them stays empty.
    /// @throws std::out_of_range for an option that the file does not have
    template <class Record, class... Types>
    Record options(const std::string& element, const std::tuple<Option<Record, Types>...>& table) const {
        Record record;
        std::apply([&](const auto&... option) { (read(valueOf(element, option.name), record.*option.member), ...); },
                   table);
        return record;
    }

    /// As it stands in the file: true, 4, "ed.,comp.,trans.", @author.
    const std::string& valueOf(const std::string& element, TextView option) const;
    /// All of them, by element and option: "year.circa".
    const std::map<std::string, std::string>& values() const { return mValues; }

private:
    explicit StyleFile(std::string_view style);

    static void read(const std::string& value, bool& option);
    static void read(const std::string& value, std::int16_t& option);
    static void read(const std::string& value, Text& option);
    static void read(const std::string& value, std::vector<bool>& option);
    template <class T>
    static void read(const std::string& /*value*/, std::shared_ptr<T>& /*option*/) {}

    std::map<std::string, std::string> mValues;
};

inline constexpr std::string_view kStyles[] = {"mla", "apa", "turabian", "ama"};

}  // namespace quorvel::test
