#include <benchmark/benchmark.h>

#include <algorithm>

#include "core/output_template.h"
#include "core/procedure.h"
#include "null_sink.h"

namespace quorvel::bench {
namespace {

constexpr StandardModule kModule{u"Bench"};

void procedureWithoutService(benchmark::State& state) {
    std::int32_t code = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(procedure(kModule, u"procedure", {{u"code", code}}, [&] { return ++code; }));
    }
}
BENCHMARK(procedureWithoutService);

/// Fills ten slots with short texts.
class TenSlots final : public Implementor {
public:
    static constexpr std::int16_t kLast = 9;

    TenSlots() {
        assembly.Initialize(std::make_shared<NullSink>());
        assembly.Reset(kLast);
        for (std::int16_t slot = 0; slot <= kLast; ++slot) {
            assembly.Add(slot, false, false, std::vector<Text>(static_cast<std::size_t>(kLast + 2 - slot), u", "));
        }
    }
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override {
        assembly.ResetReferenceItems();
        assembly.ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote);
    }
    bool ToFormattedStringImpl(bool /*isFootnote*/, std::vector<Text>& items,
                               std::vector<OutputSinkRef>& /*formattedItems*/, bool /*shortenedVersion*/) override {
        std::fill(items.begin(), items.end(), u"Cambridge");
        return false;
    }

    outputTemplate assembly;
};

void assemblyOfTenSlots(benchmark::State& state) {
    TenSlots slots;
    const auto sink = std::make_shared<NullSink>();
    for (auto _ : state) {
        slots.ToFormattedString(sink, false, false);
        benchmark::DoNotOptimize(sink->length());
    }
}
BENCHMARK(assemblyOfTenSlots);

}  // namespace
}  // namespace quorvel::bench
