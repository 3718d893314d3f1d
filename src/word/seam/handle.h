#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "word/seam/automation.h"

/// What the typed face (word.h) is made of: handles of the model's objects, and properties.
namespace quillmark::word {

/// An object of the model and the way to it. One that a call gave is kept; one that is a member of another
/// (`document.PageSetup`) is reached anew through it at each use, as late binding does. A copy keeps the
/// object that the original reaches at that moment. Using a handle without an object fails with
/// kObjectNotSet.
class Handle {
 public:
    Handle() = default;
    explicit Handle(ObjectPtr object) : object_(std::move(object)) {}
    /// The object that `owner` gives under this property name. The owner must outlive the handle.
    Handle(const Handle& owner, const char* member) : owner_(&owner), member_(member) {}
    Handle(const Handle& other) : object_(other.Keep()) {}
    /// Also of itself: the object is reached before the old one is let go.
    Handle& operator=(const Handle& other) {  // NOLINT(bugprone-unhandled-self-assignment)
        return Rebind(*this, other);
    }

    ObjectPtr Reach() const;
    /// Whether there is an object, as far as that can be told without asking the word processor.
    explicit operator bool() const { return owner_ ? bool(*owner_) : object_ != nullptr; }

 protected:
    template <class T>
    friend class Property;

    /// What a copy holds: the object reached now, or none.
    ObjectPtr Keep() const { return *this ? Reach() : nullptr; }
    /// Assignment: the target is from now on the object that the other handle reaches.
    template <class T>
    static T& Rebind(T& target, const Handle& other) {
        Handle& handle = target;
        handle.object_ = other.Keep();
        handle.owner_ = nullptr;
        return target;
    }
    Value Get(std::string_view member) const { return Reach()->Get(member); }
    void Put(std::string_view member, const Value& value) const { Reach()->Put(member, value); }
    Value Call(std::string_view member) const { return Reach()->Call(member); }
    Value Call(std::string_view member, std::initializer_list<Argument> arguments) const;
    /// The object in a property, this collection's or a member collection's element at an index or name, and
    /// a call's result.
    ObjectPtr GetObject(std::string_view member) const;
    ObjectPtr Item(const Value& index) const;
    ObjectPtr ItemOf(const char* collection, const Value& index) const;
    ObjectPtr CallObject(std::string_view member, std::initializer_list<Argument> arguments) const;

 private:
    ObjectPtr object_;
    const Handle* owner_ = nullptr;
    const char* member_ = nullptr;
};

/// A value out of the seam as the type wanted. Whole and real numbers pass for each other, -1 and 0 for the
/// flags, and a text that begins with a number for that number (`Version` is one). Otherwise kTypeMismatch.
bool ToFlag(const Value& value);
int ToWhole(const Value& value);
double ToNumber(const Value& value);
std::string ToText(const Value& value);

/// A property of type T that can be read and set like a variable. It is a part of its owner and is not
/// copied.
template <class T>
class Property {
 public:
    using Given = std::conditional_t<std::is_same_v<T, std::string>, std::string_view, T>;

    Property(const Handle& owner, const char* name) : owner_(owner), name_(name) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;
    const Property& operator=(Given value) const {
        owner_.Put(name_, Value(T(value)));
        return *this;
    }
    operator T() const { return Read(); }
    T Read() const {
        const Value value = owner_.Get(name_);
        if constexpr (std::is_same_v<T, std::string>) return ToText(value);
        if constexpr (std::is_same_v<T, bool>) return ToFlag(value);
        if constexpr (std::is_same_v<T, int>) return ToWhole(value);
        if constexpr (std::is_same_v<T, double>) return ToNumber(value);
    }

 private:
    const Handle& owner_;
    const char* name_;
};

/// Text and number types of the model's properties.
using TextProperty = Property<std::string>;
using NumberProperty = Property<double>;
using WholeProperty = Property<int>;
using FlagProperty = Property<bool>;

}  // namespace quillmark::word
