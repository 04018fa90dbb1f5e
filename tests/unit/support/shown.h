#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/text.h"

namespace quorvel {

/// A text as a failed expectation's message shows it: `EXPECT_EQ(...) << shown(c.text)`.
inline std::string shown(TextView text) {
    return ::testing::PrintToString(Text(text));
}

}  // namespace quorvel
