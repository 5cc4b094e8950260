#include "replay/Signature.h"

#include <limits>

namespace orvelle::replay {

namespace {

Value FittedInteger(const Value& value) {
    const Long number = value.As<Long>();
    if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max())
        throw LineError(value.Printed() + " is out of the range of a 16-bit number");
    return number;
}

std::string KindName(char kind) {
    switch (kind) {
        case 't':
            return "text";
        case 'b':
            return "Boolean";
        case 'r':
            return "number";
        default:
            return "whole number";
    }
}

bool Suits(const Value& value, char kind) {
    switch (kind) {
        case 't':
            return value.Is<std::string>();
        case 'b':
            return value.Is<bool>() || value.Is<Long>();
        case 'r':
            return value.Is<double>() || value.Is<Long>();
        case '*':
            return true;
        default:
            return value.Is<Long>();
    }
}

}  // namespace

Values Fitted(const Values& values, std::string_view kinds, const std::string& what) {
    if (values.size() != kinds.size())
        throw LineError(what + " takes " + std::to_string(kinds.size()) + (kinds.size() == 1 ? " value" : " values") +
                        " and not " + std::to_string(values.size()));
    Values fitted;
    for (std::size_t index = 0; index < values.size(); ++index) fitted.push_back(Fitted(values[index], kinds[index]));
    return fitted;
}

Value Fitted(const Value& value, char kind) {
    if (!Suits(value, kind)) throw LineError(value.Printed() + " is no " + KindName(kind));
    if (kind == 'b' && value.Is<Long>()) return value.As<Long>() != 0;
    if (kind == 'r' && value.Is<Long>()) return static_cast<double>(value.As<Long>());
    if (kind == 'i') return FittedInteger(value);
    if (kind == 'h') return Value::Root(value.As<Long>());
    return value;
}

Value Nothing(char kind) {
    switch (kind) {
        case 't':
            return "";
        case 'b':
            return false;
        case 'r':
            return 0.0;
        default:
            return Long{0};
    }
}

}  // namespace orvelle::replay
