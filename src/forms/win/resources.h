#pragma once

/// The number of the manifest with the visual styles. Another than the numbers to which the loader gives a meaning.
// The resource compiler knows no other constants. NOLINTNEXTLINE(cppcoreguidelines-macro-usage)
#define QUORVEL_VISUAL_STYLES 124
