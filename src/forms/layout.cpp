#include "forms/layout.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace quorvel::forms {

namespace {

// Dialog units, as the platform's guidelines have them.
constexpr std::int16_t kGap = 4;
constexpr std::int16_t kFrameTop = 11;
constexpr std::int16_t kFrameBottom = 5;
constexpr std::int16_t kUpDownWidth = 10;

constexpr std::int16_t kTextLine = 8;
/// What stands beside something higher, a list, begins at its top.
constexpr std::int16_t kHighestLine = 18;

/// The usual heights, by kind. In a text box the text stands in the middle, at the height of the label beside it.
constexpr std::array<std::int16_t, 10> kHeights = {kTextLine, 0, 12, 14, 10, 10, 14, 60, 12, 12};

/// How many lines a label of that width may need, each paragraph by itself.
std::int32_t linesOf(TextView caption, std::int16_t width) {
    const std::size_t inLine = static_cast<std::size_t>(std::max<int>(width / kCharacterWidth, 1));
    std::size_t lines = 0;
    for (const Text& paragraph : split(caption, u"\n")) {
        lines += std::max<std::size_t>((paragraph.size() + inLine - 1) / inLine, 1);
    }
    return static_cast<std::int32_t>(lines);
}

std::int16_t heightOf(const Control& control) {
    const Place& place = control.row().place;
    if (place.height == 0) {
        return kHeights.at(static_cast<std::size_t>(control.kind()));
    }
    // A label has room for its longest text, and takes what the one in it needs.
    return control.kind() == ControlKind::Label
               ? static_cast<std::int16_t>(
                     std::min<std::int32_t>(place.height, kTextLine * linesOf(control.caption(), place.width)))
               : place.height;
}

/// One pass over the controls of a form.
class Pass {
public:
    Pass(std::deque<Control>& controls, const DialogUnits& units) : mControls(controls), mUnits(units) {}

    /// Whether a control will be seen in a frame that is.
    bool isShown(const Control& control) const {
        return control.isVisible() && (control.kind() != ControlKind::Frame || hasContent(control));
    }

    void showWhatIsIn(const Control* frame, bool isFrameShown) {
        for (Control& control : mControls) {
            if (control.frame() == frame) {
                const bool isSeen = isFrameShown && isShown(control);
                control.setShown(isSeen);
                if (control.kind() == ControlKind::Frame) {
                    showWhatIsIn(&control, isSeen);
                }
            }
        }
    }

    /// Gives the controls of a frame, or of the form, their places below `top`.
    /// @return where the lowest one ends
    Twips place(const Control* frame, Twips left, Twips top) {
        Twips lineTop = top;
        Twips bottom = top;
        bool isFirst = true;
        for (auto row = mControls.begin(); row != mControls.end();) {
            const std::int16_t line = row->row().place.line;
            if (row->frame() != frame || !standsInLine(*row)) {
                ++row;
                continue;
            }
            // A line's rows stand together, with what their frames hold between them.
            const auto first = row;
            row = std::find_if(first, mControls.end(), [&](const Control& control) {
                return control.frame() == frame && standsInLine(control) && control.row().place.line != line;
            });
            const Twips height = heightOfLine(frame, line);
            if (height == 0) {
                continue;
            }
            lineTop = fixedTop(frame, line).value_or(isFirst ? top : bottom + vertical(kGap));
            isFirst = false;
            bottom = std::max(bottom, placeLine(frame, line, left, lineTop, height));
        }
        return bottom;
    }

    /// The arrows at the right end of a box, wherever that stands.
    void placeBesideBuddy(Control& upDown) {
        const auto buddy = std::find_if(mControls.begin(), mControls.end(), [&](const Control& control) {
            return !upDown.row().buddy.empty() && control.is({upDown.row().buddy, upDown.index()});
        });
        if (buddy != mControls.end()) {
            const Rectangle& box = buddy->place();
            upDown.setPlace({box.left + box.width, box.top, horizontal(kUpDownWidth), box.height});
        }
    }

    Twips vertical(std::int32_t units) const { return static_cast<Twips>(units) * mUnits.vertical; }
    Twips horizontal(std::int32_t units) const { return static_cast<Twips>(units) * mUnits.horizontal; }

    static bool isBottomPane(const Control& control) { return control.name() == kBottomPane; }

private:
    /// The pane stands by itself, and arrows stand beside their boxes.
    static bool standsInLine(const Control& control) {
        return !isBottomPane(control) && control.kind() != ControlKind::UpDown;
    }

    template <class Visit>
    void forEachOfLine(const Control* frame, std::int16_t line, Visit visit) {
        for (Control& control : mControls) {
            if (control.frame() == frame && control.row().place.line == line && standsInLine(control) &&
                control.isShown()) {
                visit(control);
            }
        }
    }

    Twips heightOfLine(const Control* frame, std::int16_t line) {
        Twips height = 0;
        forEachOfLine(frame, line, [&](const Control& control) {
            // A frame is as high as it turns out to be.
            height = std::max(height, std::max(vertical(heightOf(control)), Twips{1}));
        });
        return height;
    }

    std::optional<Twips> fixedTop(const Control* frame, std::int16_t line) {
        std::optional<Twips> top;
        forEachOfLine(frame, line, [&](const Control& control) {
            if (control.fixedTop()) {
                top = control.fixedTop();
            }
        });
        return top;
    }

    Twips placeLine(const Control* frame, std::int16_t line, Twips left, Twips top, Twips height) {
        Twips bottom = top + height;
        forEachOfLine(frame, line, [&](Control& control) {
            if (control.kind() == ControlKind::Frame) {
                bottom = std::max(bottom, placeFrame(control, left, top));
            } else {
                const Twips own = vertical(heightOf(control));
                const Twips room = height > vertical(kHighestLine) ? own : height;
                control.setPlace(
                    {left + horizontal(control.row().place.x), top + (room - own) / 2, widthOf(control), own});
            }
        });
        return bottom;
    }

    Twips widthOf(const Control& control) const { return horizontal(control.row().place.width); }

    Twips placeFrame(Control& control, Twips left, Twips top) {
        const Twips inner = left + horizontal(control.row().place.x);
        const bool hasBorder = !control.caption().empty();
        const Twips end = place(&control, inner, top + vertical(hasBorder ? kFrameTop : 0));
        const Twips bottom = end + vertical(hasBorder ? kFrameBottom : 0);
        control.setPlace({inner, top, widthOf(control), bottom - top});
        return bottom;
    }

    bool hasContent(const Control& frame) const {
        return std::any_of(mControls.begin(), mControls.end(),
                           [&](const Control& control) { return control.frame() == &frame && isShown(control); });
    }

    std::deque<Control>& mControls;
    DialogUnits mUnits;
};

}  // namespace

Control* layOutControls(std::deque<Control>& controls, const DialogUnits& units, Twips width) {
    Pass pass(controls, units);
    pass.showWhatIsIn(nullptr, true);
    pass.place(nullptr, pass.horizontal(kMargin), pass.vertical(kMargin));

    Control* lowest = nullptr;
    for (Control& control : controls) {
        if (Pass::isBottomPane(control)) {
            const Twips end = pass.place(&control, pass.horizontal(kMargin), pass.vertical(kGap));
            control.setPlace({0, 0, width, end + pass.vertical(kMargin)});
        } else if (control.frame() == nullptr && control.isShown() &&
                   (lowest == nullptr ||
                    control.place().top + control.place().height > lowest->place().top + lowest->place().height)) {
            lowest = &control;
        }
    }
    for (Control& control : controls) {
        if (control.kind() == ControlKind::UpDown) {
            pass.placeBesideBuddy(control);
        }
    }
    return lowest;
}

}  // namespace quorvel::forms
