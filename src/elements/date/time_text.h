#pragma once

#include <optional>

#include "core/text.h"

/// Times of day in the texts of references.
namespace quorvel {

/// A time found in a text, as views into that text.
struct TimeInText {
    TextView before;
    /// As typed: "10:23 a.m.", "12:57:58 pm", "14:30", "10 AM".
    TextView time;
    /// "PDT", "UTC+2", "Pacific Daylight Time", "-05:00"; empty when none follows.
    TextView zone;
    TextView after;
};

/// The first time of day in the text.
std::optional<TimeInText> findTime(TextView text);

/// A time with its half of the day written as references do: "10:23 a.m." for "10:23 AM". Every other
/// text is returned as it is.
Text withHalfOfDay(TextView time);

}  // namespace quorvel
