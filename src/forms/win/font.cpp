#include "forms/win/font.h"

#include <cstring>
#include <iterator>
#include <mutex>
#include <vector>

namespace quorvel::forms::win {

namespace {

/// The average of the letters, rounded, as dialog boxes of the platform have it, and the height of a line.
SIZE averageOf(HFONT font) {
    constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = static_cast<int>(std::size(kLetters)) - 1;
    // What a font of the usual size has, should there be none.
    SIZE average = {6, 13};
    const HDC screen = GetDC(nullptr);
    if (screen == nullptr) {
        return average;
    }
    const HGDIOBJ before = SelectObject(screen, font);
    SIZE extent = {};
    TEXTMETRICW metrics = {};
    if (GetTextExtentPoint32W(screen, kLetters, kCount, &extent) != FALSE &&
        GetTextMetricsW(screen, &metrics) != FALSE) {
        average = {(extent.cx / (kCount / 2) + 1) / 2, metrics.tmHeight};
    }
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return average;
}

struct SharedFonts {
    std::mutex mutex;
    std::vector<std::weak_ptr<const Font>> fonts;
};

SharedFonts& sharedFonts() {
    static SharedFonts fonts;
    return fonts;
}

}  // namespace

Font::Font(const LOGFONTW& description)
    : mDescription(description), mHandle(CreateFontIndirectW(&description)), mAverage(averageOf(mHandle)) {}

Font::~Font() {
    DeleteObject(mHandle);
}

std::shared_ptr<const Font> Font::of(const Density& density) {
    const LOGFONTW wanted = density.messageFont();
    SharedFonts& shared = sharedFonts();
    const std::scoped_lock lock(shared.mutex);
    std::erase_if(shared.fonts, [](const std::weak_ptr<const Font>& font) { return font.expired(); });
    for (const std::weak_ptr<const Font>& known : shared.fonts) {
        std::shared_ptr<const Font> font = known.lock();
        if (font && std::memcmp(&font->mDescription, &wanted, sizeof(wanted)) == 0) {
            return font;
        }
    }
    auto font = std::make_shared<const Font>(wanted);
    shared.fonts.push_back(font);
    return font;
}

}  // namespace quorvel::forms::win
