#include "host/slot_arrays.h"

#include "core/procedure.h"
#include "host/com/answers.h"
#include "host/com/arguments.h"
#include "host/com/arrays.h"
#include "host/host_sink.h"

namespace quorvel::host {

namespace {

constexpr StandardModule kModule{u"OutputTemplate"};

}  // namespace

bool fillSlotArrays(Implementor& implementor, bool isFootnote, VARIANT* items, VARIANT* formattedItems,
                    bool shortenedVersion) {
    bool nothingToAssemble = true;
    // Named after the assembly, since an array that is missing or too small is no fault of the element.
    procedure(
        kModule, u"ToFormattedStringImpl", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}}, [&] {
            if (items == nullptr || formattedItems == nullptr) {
                throw RuntimeError(ErrorNumber::ArgumentNotOptional);
            }
            std::vector<Text> texts = textsOf(*items);
            std::vector<OutputSinkRef> fragments;
            for (const Variant& item : elementsOf(*formattedItems)) {
                fragments.push_back(HostSink::of(objectAnswer(item).get()));
            }
            const bool outcome = implementor.ToFormattedStringImpl(isFootnote, texts, fragments, shortenedVersion);
            std::vector<Variant> results;
            for (const Text& text : texts) {
                results.emplace_back(TextView(text));
            }
            // The fragments were filled where they are.
            assignElements(*items, results);
            nothingToAssemble = outcome;
        });
    return nothingToAssemble;
}

}  // namespace quorvel::host
