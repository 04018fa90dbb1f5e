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

/// The keyboard of a form that is seen: the thread's messages pass by, and what means something to the form reaches its
/// window as `kKeyMessage` in place of the key, from the host's own loop. Other windows' messages are left alone.
class Keyboard {
public:
    /// With the two parts of a `KeyStroke` as its parameters.
    static constexpr UINT kKeyMessage = WM_APP + 1;
    /// Who reads the keys of a window of the thread, if it is a form's.
    using FindReader = const KeyReader* (*)(HWND root);

    explicit Keyboard(FindReader findReader);
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;
    ~Keyboard();
};

}  // namespace quorvel::forms::win
