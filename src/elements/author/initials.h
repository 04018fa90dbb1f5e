#pragma once

#include "core/text.h"

namespace quorvel::authorwords {

/// Appends first names as initials: "Jean-Paul A.T. [Paul]" as "J.-P. A. T. [Paul]" or "JPAT [Paul]". A run of
/// capitals stays as it is, a particle whole.
void appendInitials(Text& result, TextView firstNames, bool usesPeriods);

/// Where the particle at the end of first names begins ("Simone de"); npos when there is none.
std::size_t finalParticle(TextView firstNames);

}  // namespace quorvel::authorwords
