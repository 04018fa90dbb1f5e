#include "platform/hostile_environment.h"

#include <clocale>
#include <cstdlib>
#include <ctime>

#ifdef _WIN32
#include <windows.h>
#endif

namespace quorvel::tests {

namespace {

#ifdef _WIN32
void setTimeZone(const char* timeZone) {
    _putenv_s("TZ", timeZone == nullptr ? "" : timeZone);
    _tzset();
}

bool setCountry(const Country& country) {
    // The thread's locale is the one that the platform's functions take by default.
    return SetThreadLocale(country.windowsLocale) != 0;
}
#else
void setTimeZone(const char* timeZone) {
    if (timeZone == nullptr) {
        unsetenv("TZ");
    } else {
        setenv("TZ", timeZone, 1);
    }
    tzset();
}

bool setCountry(const Country& country) {
    if (std::setlocale(LC_ALL, country.posixLocale) != nullptr) {
        return true;
    }
    // Not installed: the build has made one for the tests, if it could.
    setenv("LOCPATH", QUORVEL_TEST_LOCALES, 1);
    const bool isSet = std::setlocale(LC_ALL, country.posixLocale) != nullptr;
    unsetenv("LOCPATH");
    return isSet;
}
#endif

}  // namespace

HostileEnvironment::HostileEnvironment(const Country& country) : mLocale(std::setlocale(LC_ALL, nullptr)) {
    if (const char* timeZone = std::getenv("TZ")) {
        mTimeZone = timeZone;
    }
#ifdef _WIN32
    mThreadLocale = GetThreadLocale();
#endif
    setTimeZone(country.timeZone);
    mIsInForce = setCountry(country);
}

HostileEnvironment::~HostileEnvironment() {
    std::setlocale(LC_ALL, mLocale.c_str());
#ifdef _WIN32
    SetThreadLocale(mThreadLocale);
#endif
    setTimeZone(mTimeZone ? mTimeZone->c_str() : nullptr);
}

}  // namespace quorvel::tests
