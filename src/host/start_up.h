#pragma once

namespace quorvel::host {

/// The start-up routine: once per load, before any class is used. Sets the trace switches from the
/// per-user setting `vbwTrace` in section `Init` ("1" is on) and from "/trace" in the command line of the
/// process.
void startUp();

/// The library is not in use: what comes after this is another load, for which `startUp` does its work
/// again.
void shutDown();

}  // namespace quorvel::host
