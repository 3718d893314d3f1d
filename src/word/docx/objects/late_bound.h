#pragma once

#include <array>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "word/seam/automation.h"

/// What the engine's late-bound objects are made of: their members in a table each, reached by name, and the
/// conversions of what is passed to them.
namespace quillmark::word::docx::objects {

// ---- Values ----

/// What a property gives that is not the same throughout the text it is asked of.
inline constexpr std::int32_t kUndefined = 9999999;

/// A value as the type that a member wants; numbers pass for flags and whole numbers for real ones. Throws
/// kTypeMismatch for anything else.
bool FlagOf(const Value& value);
int WholeOf(const Value& value);
double NumberOf(const Value& value);
const std::string& StringOf(const Value& value);
/// A whole number between two bounds; kBadValue outside of them.
int WholeWithin(const Value& value, int least, int most);
/// Points as twips; kBadValue outside of the bounds, which are points.
int TwipsOf(const Value& value, double least, double most);

inline Value Whole(int number) {
    return std::int32_t{number};
}
inline Value PointsOf(int twips) {
    return twips / 20.0;
}

/// The engine's object of type T behind a value; kTypeMismatch when it is another's or none.
template <class T>
std::shared_ptr<T> ObjectOf(const Value& value) {
    const auto* object = std::get_if<ObjectPtr>(&value);
    auto found = object ? std::dynamic_pointer_cast<T>(*object) : nullptr;
    if (!found) throw AutomationError(error::kTypeMismatch, std::string("Type mismatch: no ") + T::kName);
    return found;
}

// ---- Arguments ----

/// The arguments of one call by the parameters' names: in order, or by name from any place on. Refuses what
/// no parameter takes. At most twelve parameters.
class ArgumentReader {
 public:
    ArgumentReader(Arguments arguments, std::initializer_list<std::string_view> names);

    /// Null when it was left out.
    const Value* Find(std::string_view name) const;
    /// Throws kArgumentNotOptional when it was left out.
    const Value& operator[](std::string_view name) const;
    bool Flag(std::string_view name, bool otherwise) const;
    int Whole(std::string_view name, int otherwise) const;

 private:
    static constexpr std::size_t kMostParameters = 12;

    Arguments arguments_;
    std::array<std::string_view, kMostParameters> names_;
};

/// For members that take none.
void ExpectNoArguments(Arguments arguments);

// ---- Members ----

/// A member of objects of type T. A property has `get`, and `put` if it can be set; a method has `call`.
template <class T>
struct Member {
    std::string_view name;
    Value (*get)(T&, Arguments) = nullptr;
    void (*put)(T&, const Value&) = nullptr;
    Value (*call)(T&, Arguments) = nullptr;
};

/// Hashes a member's name by its length and three of its characters: names within one object differ there.
inline std::size_t HashOfName(std::string_view name) {
    if (name.empty()) return 0;
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(name[i]); };
    return name.size() + 7u * at(0) + 31u * at(name.size() / 2) + 113u * at(name.size() - 1);
}

template <class T>
class MemberTable {
 public:
    MemberTable(std::initializer_list<Member<T>> members) : members_(members) {
        while (size_ < 2 * members_.size()) size_ *= 2;
        slots_.assign(size_, nullptr);
        for (const Member<T>& member : members_) {
            std::size_t slot = HashOfName(member.name) % size_;
            while (slots_[slot]) slot = (slot + 1) % size_;
            slots_[slot] = &member;
        }
    }

    const Member<T>* Find(std::string_view name) const {
        for (std::size_t slot = HashOfName(name) & (size_ - 1); slots_[slot]; slot = (slot + 1) & (size_ - 1))
            if (slots_[slot]->name == name) return slots_[slot];
        return nullptr;
    }

 private:
    const std::vector<Member<T>> members_;
    std::vector<const Member<T>*> slots_;
    std::size_t size_ = 4;
};

[[noreturn]] void RefuseMember(std::string_view object, std::string_view member);
[[noreturn]] void RefuseElement();

// ---- Objects ----

/// Something that is kept alive as a whole as long as one of its objects is in use.
class Shared : public std::enable_shared_from_this<Shared> {
 public:
    virtual ~Shared() = default;
    ObjectPtr Share(Object& part) { return ObjectPtr(shared_from_this(), &part); }
};

/// An object with the members of `T::Members()`, named `T::kName`. `T::CheckAlive()` throws when it can no
/// longer be used.
template <class T>
class LateBound : public Object {
 public:
    using Object::Call;
    using Object::Get;

    Value Get(std::string_view name, Arguments arguments) final {
        const Member<T>& member = Reach(name);
        if (member.get) return member.get(self(), arguments);
        return member.call ? member.call(self(), arguments) : Refuse(name);
    }
    void Put(std::string_view name, const Value& value) final {
        const Member<T>& member = Reach(name);
        if (!member.put) Refuse(name);
        member.put(self(), value);
    }
    Value Call(std::string_view name, Arguments arguments) final {
        const Member<T>& member = Reach(name);
        if (member.call) return member.call(self(), arguments);
        return member.get ? member.get(self(), arguments) : Refuse(name);
    }

 private:
    T& self() { return static_cast<T&>(*this); }
    const Member<T>& Reach(std::string_view name) {
        self().CheckAlive();
        const Member<T>* const member = T::Members().Find(name);
        if (!member) Refuse(name);
        return *member;
    }
    [[noreturn]] static Value Refuse(std::string_view name) { RefuseMember(T::kName, name); }
};

/// The collection that a property gives, or its element when the property was given an index.
inline Value CollectionOrItem(const ObjectPtr& collection, Arguments index) {
    return index.empty() ? Value(collection) : collection->Get("Item", index);
}

}  // namespace quillmark::word::docx::objects
