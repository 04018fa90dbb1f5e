#pragma once

#include <optional>
#include <string>

namespace quorvel::tests {

/// A country whose settings would change dates and letter case if anything listened to them.
struct Country {
    const char* posixLocale;
    unsigned windowsLocale;
    const char* timeZone;
};

inline constexpr Country kHostileCountries[] = {
    {"tr_TR.UTF-8", 0x41F, "EAST-14"},  // i is not the small letter of I
    {"de_DE.UTF-8", 0x407, "WEST+12"},  // 1.6.2010, Juni
};

/// Moves the process to a country for the life of the object.
class HostileEnvironment {
public:
    explicit HostileEnvironment(const Country& country);
    HostileEnvironment(const HostileEnvironment&) = delete;
    HostileEnvironment& operator=(const HostileEnvironment&) = delete;
    ~HostileEnvironment();

    /// False where the machine does not have the country's locale: a test there shows nothing.
    bool isInForce() const { return mIsInForce; }

private:
    std::string mLocale;
    std::optional<std::string> mTimeZone;
    unsigned mThreadLocale = 0;
    bool mIsInForce = false;
};

}  // namespace quorvel::tests
