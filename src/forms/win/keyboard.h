#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace quorvel::forms::win {

/// What a key means to a form, which a host's message loop knows nothing of.
enum class KeyCommand : std::uint8_t {
    /// Another repetition of a key that was held down before: not for the control, and not for the form.
    Nothing,
    NextStop,
    PreviousStop,
    Enter,
    Escape,
    NextNeighbour,
    PreviousNeighbour,
    SpinUp,
    SpinDown,
    SelectAll,
    Mnemonic,
};

struct KeyStroke {
    KeyCommand command = KeyCommand::Nothing;
    /// Of a mnemonic.
    char16_t letter = 0;
};

/// Who knows what a message from the queue means: a form's window.
class KeyReader {
public:
    /// Nothing when the message is to go where it goes.
    virtual std::optional<KeyStroke> meaningOf(const MSG& message) const = 0;

protected:
    ~KeyReader() = default;
};

/// Who reads the keys of a window of this thread: null unless it is a form's.
const KeyReader* keyReaderOf(HWND root);

/// The keyboard of a form that is seen: the thread's messages pass by, and what means something to the form reaches its
/// window as `kKeyMessage` in place of the key, from the host's own loop. Other windows' messages are left alone. Of
/// several forms each has one, and the first that sees a key is enough for all.
class Keyboard {
public:
    /// With the two parts of a `KeyStroke` as its parameters.
    static constexpr UINT kKeyMessage = WM_APP + 1;

    Keyboard();
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;
    ~Keyboard();

private:
    HHOOK mHook;
};

}  // namespace quorvel::forms::win
