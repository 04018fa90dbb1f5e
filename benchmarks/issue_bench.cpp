#include "elements/issue/issue.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplateIssue& issue, const std::shared_ptr<NullSink>& sink, TextView text) {
    Text parsed(text);
    issue.Parse(parsed, {});
    issue.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplateIssue turabianIssue(const std::shared_ptr<NullSink>& sink) {
    OutputTemplateIssue issue;
    issue.Initialize(sink);
    issue.Reset({3, u"Special issue,Supplement"});
    return issue;
}

void parseAndFormatIssue(benchmark::State& state, TextView text) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateIssue issue = turabianIssue(sink);
    for (auto _ : state) {
        parseAndWrite(issue, sink, text);
    }
}
BENCHMARK_CAPTURE(parseAndFormatIssue, number, u"no. 4");
BENCHMARK_CAPTURE(parseAndFormatIssue, supplement, u"4 (suppl 2)");
BENCHMARK_CAPTURE(parseAndFormatIssue, specialIssue, u"Identities. Ed. Anthony Appiah. Spec. issue");

/// The time for each character stays the same when the growth is linear.
void issuePerCharacter(benchmark::State& state) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateIssue issue = turabianIssue(sink);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"4, xsupplement ed. special issu";
    }
    text += u", special issue";
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(issue, sink, text);
        }
    }
}
BENCHMARK(issuePerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench
