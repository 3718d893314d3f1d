#include "word/seam/handle.h"

#include <charconv>

namespace quillmark::word {
namespace {

[[noreturn]] void RefuseType(const char* wanted) {
    throw AutomationError(error::kTypeMismatch, std::string("the word processor gave no ") + wanted);
}

ObjectPtr ToObject(const Value& value, std::string_view member) {
    const auto* object = std::get_if<ObjectPtr>(&value);
    if (object && *object) return *object;
    throw AutomationError(error::kObjectNotSet, std::string(member) + " gave no object");
}

double LeadingNumber(const std::string& text) {
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc()) RefuseType("number");
    return number;
}

}  // namespace

// ---- Values ----

bool ToFlag(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    return ToNumber(value) != 0;
}

int ToWhole(const Value& value) {
    const double number = ToNumber(value);
    if (!(number >= INT32_MIN && number <= INT32_MAX)) RefuseType("whole number");
    return static_cast<int>(number < 0 ? number - 0.5 : number + 0.5);
}

double ToNumber(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* text = std::get_if<std::string>(&value)) return LeadingNumber(*text);
    RefuseType("number");
}

std::string ToText(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    RefuseType("text");
}

// ---- Handle ----

ObjectPtr Handle::Reach() const {
    if (owner_) return owner_->GetObject(member_);
    if (!object_) throw AutomationError(error::kObjectNotSet, "Object variable not set");
    return object_;
}

Value Handle::Call(std::string_view member, std::initializer_list<Argument> arguments) const {
    return Reach()->Call(member, Arguments(arguments.begin(), arguments.size()));
}

ObjectPtr Handle::GetObject(std::string_view member) const {
    return ToObject(Get(member), member);
}

ObjectPtr Handle::Item(const Value& index) const {
    const Argument argument{index};
    return ToObject(Reach()->Get("Item", Arguments(&argument, 1)), "Item");
}

ObjectPtr Handle::ItemOf(const char* collection, const Value& index) const {
    return Handle(*this, collection).Item(index);
}

ObjectPtr Handle::CallObject(std::string_view member, std::initializer_list<Argument> arguments) const {
    return ToObject(Call(member, arguments), member);
}

}  // namespace quillmark::word
