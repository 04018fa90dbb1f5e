#pragma once

/// The number of the manifest with the visual styles. Another than the numbers to which the loader gives a meaning.
#define QUORVEL_VISUAL_STYLES 124
