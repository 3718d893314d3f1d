#include "word/docx/objects/late_bound.h"

#include <algorithm>
#include <cstdint>

#include <fmt/format.h>

namespace quillmark::word::docx::objects {
namespace {

[[noreturn]] void RefuseType(const char* wanted) {
    throw AutomationError(error::kTypeMismatch, fmt::format("Type mismatch: {} expected", wanted));
}

[[noreturn]] void RefuseValue(double number) {
    throw AutomationError(error::kBadValue, fmt::format("Value out of range: {}", number));
}

bool IsGiven(const Value& value) {
    return !std::holds_alternative<std::monostate>(value);
}

}  // namespace

// ---- Values ----

double NumberOf(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
    if (const auto* real = std::get_if<double>(&value); real && std::isfinite(*real)) return *real;
    RefuseType("number");
}

bool FlagOf(const Value& value) {
    return NumberOf(value) != 0;
}

int WholeOf(const Value& value) {
    const double number = std::nearbyint(NumberOf(value));
    if (number < INT32_MIN || number > INT32_MAX) RefuseValue(number);
    return static_cast<int>(number);
}

const std::string& StringOf(const Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    if (!text) RefuseType("text");
    return *text;
}

int WholeWithin(const Value& value, int least, int most) {
    const int number = WholeOf(value);
    if (number < least || number > most) RefuseValue(number);
    return number;
}

int TwipsOf(const Value& value, double least, double most) {
    const double points = NumberOf(value);
    if (points < least || points > most) RefuseValue(points);
    return static_cast<int>(std::lround(points * 20));
}

// ---- Arguments ----

ArgumentReader::ArgumentReader(Arguments arguments, std::initializer_list<std::string_view> names)
    : arguments_(arguments) {
    std::copy(names.begin(), names.end(), names_.begin());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view name = arguments[i].name;
        if (name.empty() && i >= names.size())
            throw AutomationError(error::kWrongArgumentCount, "Wrong number of arguments");
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end())
            throw AutomationError(error::kNoSuchArgument, fmt::format("Named argument not found: {}", name));
    }
}

const Value* ArgumentReader::Find(std::string_view name) const {
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        const Argument& argument = arguments_[i];
        const std::string_view given = argument.name.empty() ? names_[i] : argument.name;
        if (given == name && IsGiven(argument.value)) return &argument.value;
    }
    return nullptr;
}

const Value& ArgumentReader::operator[](std::string_view name) const {
    const Value* const value = Find(name);
    if (!value)
        throw AutomationError(error::kArgumentNotOptional, fmt::format("Argument not optional: {}", name));
    return *value;
}

bool ArgumentReader::Flag(std::string_view name, bool otherwise) const {
    const Value* const value = Find(name);
    return value ? FlagOf(*value) : otherwise;
}

int ArgumentReader::Whole(std::string_view name, int otherwise) const {
    const Value* const value = Find(name);
    return value ? WholeOf(*value) : otherwise;
}

void ExpectNoArguments(Arguments arguments) {
    if (!arguments.empty()) throw AutomationError(error::kWrongArgumentCount, "Wrong number of arguments");
}

// ---- Refusals ----

void RefuseMember(std::string_view object, std::string_view member) {
    throw AutomationError(
        error::kNoSuchMember,
        fmt::format("Object doesn't support this property or method: {}.{}", object, member));
}

void RefuseElement() {
    throw AutomationError(error::kNoSuchElement, "The requested member of the collection does not exist.");
}

}  // namespace quillmark::word::docx::objects
