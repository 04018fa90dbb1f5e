#pragma once

#include <windows.h>

#include <memory>

#include "forms/win/density.h"

namespace quorvel::forms::win {

/// The system's message font at a density. Forms of one density share it, and it goes with the last of them.
class Font {
public:
    /// The font that others use already, unless the user has chosen another since.
    static std::shared_ptr<const Font> of(const Density& density);

    explicit Font(const LOGFONTW& description);
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;
    ~Font();

    HFONT handle() const { return mHandle; }
    /// In pixels: four horizontal dialog units are an average letter, eight vertical ones a line.
    SIZE average() const { return mAverage; }

private:
    LOGFONTW mDescription;
    HFONT mHandle;
    SIZE mAverage = {};
};

}  // namespace quorvel::forms::win
