#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "word/seam/automation.h"

namespace quillmark::word::test {

/// An object of a word processor that does nothing: it holds the values put into it, makes up every object
/// that is asked for, and refuses what a test tells it to refuse.
class ScriptedObject : public Object {
 public:
    using Answer = std::function<Value(Arguments)>;

    Value Get(std::string_view member, Arguments arguments) override;
    void Put(std::string_view member, const Value& value) override;
    Value Call(std::string_view member, Arguments arguments) override;

    /// The member object of this name, made when it is missing; "Item(1)" for an element.
    std::shared_ptr<ScriptedObject> Child(const std::string& name);
    void Set(const std::string& property, Value value) { values_[property] = std::move(value); }
    void Answers(const std::string& method, Answer answer) { answers_[method] = std::move(answer); }
    void Refuses(const std::string& member, int number, std::string description);
    Value Last(const std::string& property) const { return values_.at(property); }

 private:
    void RefuseIfTold(std::string_view member) const;

    std::map<std::string, Value> values_;
    std::map<std::string, std::shared_ptr<ScriptedObject>> children_;
    std::map<std::string, Answer> answers_;
    std::map<std::string, AutomationError, std::less<>> refusals_;
};

using ScriptedPtr = std::shared_ptr<ScriptedObject>;

/// An application whose documents, list templates, tables and form fields can be added and counted.
ScriptedPtr ScriptedApplication();

}  // namespace quillmark::word::test
