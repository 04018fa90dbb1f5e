#pragma once

#include <memory>

#include "support/recording_object.h"
#include "support/recording_sink.h"

namespace quorvel {

/// One of the library's own elements, reached by the names of its members as a form reaches it.
template <class Element>
class LentElement {
public:
    using Arguments = forms::LateObject::Arguments;

    template <class Options>
    explicit LentElement(const Options& options) {
        element->Initialize(std::make_shared<RecordingSink>());
        element->Reset(options);
        const std::shared_ptr<Element> lent = element;
        RecordingObject* const self = object.get();
        object->does(u"Parse", [lent, self](Arguments arguments) {
            Text text = arguments[0].asText();
            lent->Parse(text, arguments.size() > 1 ? arguments[1].asText() : Text());
            self->leaves(u"Parse", text);
            return forms::Value();
        });
        object->does(u"toString", [lent](Arguments) {
            if constexpr (requires { lent->toString(false, false, false); }) {
                return forms::Value(lent->toString(false, false, false));
            } else {
                return forms::Value(lent->toString(false, false));
            }
        });
    }

    template <class T, class U>
    void lend(const char16_t* member, T (Element::*read)() const, void (Element::*write)(U)) {
        const std::shared_ptr<Element> lent = element;
        object->does(member, [=](Arguments) { return valueOf(((*lent).*read)()); });
        object->takes(member, [=](Arguments arguments) {
            ((*lent).*write)(to<U>(arguments.back()));
            return forms::Value();
        });
    }
    template <class T>
    void lend(const char16_t* member, T Element::*field) {
        const std::shared_ptr<Element> lent = element;
        object->does(member, [=](Arguments) { return valueOf((*lent).*field); });
        object->takes(member, [=](Arguments arguments) {
            (*lent).*field = to<T>(arguments.back());
            return forms::Value();
        });
    }

    std::shared_ptr<Element> element = std::make_shared<Element>();
    std::shared_ptr<RecordingObject> object = std::make_shared<RecordingObject>();

private:
    template <class T>
    static forms::Value valueOf(const T& value) {
        if constexpr (std::is_same_v<T, std::int16_t>) {
            return forms::Value(std::int32_t{value});
        } else {
            return forms::Value(value);
        }
    }
    template <class T>
    static auto to(const forms::Value& value) {
        if constexpr (std::is_same_v<T, bool>) {
            return value.asFlag();
        } else if constexpr (std::is_integral_v<T>) {
            return static_cast<T>(value.asNumber());
        } else {
            return value.asText();
        }
    }
};

}  // namespace quorvel
