#include "core/run_time_error.h"

namespace quorvel {

TextView descriptionOf(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::Overflow: return u"Overflow";
        case ErrorNumber::OutOfMemory: return u"Out of memory";
        case ErrorNumber::SubscriptOutOfRange: return u"Subscript out of range";
        case ErrorNumber::TypeMismatch: return u"Type mismatch";
        case ErrorNumber::OutOfStackSpace: return u"Out of stack space";
        case ErrorNumber::InternalError: return u"Internal error";
        case ErrorNumber::ObjectNotSet: return u"Object variable not set";
        case ErrorNumber::ComponentNotRegistered: return u"Component not correctly registered";
        case ErrorNumber::CannotCreateObject: return u"Component can't create object";
        case ErrorNumber::NoSuchMember: return u"Object doesn't support this property or method";
        case ErrorNumber::AutomationError: return u"Automation error";
        case ErrorNumber::ArgumentNotOptional: return u"Argument not optional";
        case ErrorNumber::WrongNumberOfArguments: return u"Wrong number of arguments";
        case ErrorNumber::ServerUnavailable: return u"The remote server machine is unavailable";
    }
    return u"Unknown error";
}

Text descriptionOf(ErrorNumber number, TextView subject) {
    return subject.empty() ? Text(descriptionOf(number)) : concatenate({descriptionOf(number), u": ", subject});
}

}  // namespace quorvel
