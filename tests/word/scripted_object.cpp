#include "word/scripted_object.h"

namespace quillmark::word::test {
namespace {

std::string KeyOf(std::string_view member, Arguments arguments) {
    std::string key(member);
    for (const auto& argument : arguments) {
        if (const auto* whole = std::get_if<std::int32_t>(&argument.value))
            key += "," + std::to_string(*whole);
        if (const auto* real = std::get_if<double>(&argument.value)) key += "," + std::to_string(*real);
        if (const auto* text = std::get_if<std::string>(&argument.value)) key += "," + *text;
    }
    return key;
}

/// A collection that counts what was added to it; the new element is its last.
void MakeCountable(const ScriptedPtr& collection, std::function<void(const ScriptedPtr&)> prepare = {}) {
    auto count = std::make_shared<int>(0);
    auto* raw = collection.get();
    collection->Set("Count", 0);
    const auto add = [=](Arguments) -> Value {
        raw->Set("Count", ++*count);
        auto element = raw->Child("Item," + std::to_string(*count));
        if (prepare) prepare(element);
        return ObjectPtr(element);
    };
    collection->Answers("Add", add);
    collection->Answers("Open", add);
}

void MakeTable(const ScriptedPtr& table) {
    table->Answers("Cell", [raw = table.get()](Arguments place) {
        return Value(ObjectPtr(raw->Child(KeyOf("Cell", place))));
    });
}

void MakeDocument(const ScriptedPtr& document) {
    MakeCountable(document->Child("ListTemplates"));
    MakeCountable(document->Child("FormFields"));
    MakeCountable(document->Child("Tables"), MakeTable);
}

}  // namespace

Value ScriptedObject::Get(std::string_view member, Arguments arguments) {
    RefuseIfTold(member);
    const std::string key = KeyOf(member, arguments);
    const auto value = values_.find(key);
    if (value != values_.end()) return value->second;
    return ObjectPtr(Child(key));
}

void ScriptedObject::Put(std::string_view member, const Value& value) {
    RefuseIfTold(member);
    values_[std::string(member)] = value;
}

Value ScriptedObject::Call(std::string_view member, Arguments arguments) {
    RefuseIfTold(member);
    const auto answer = answers_.find(std::string(member));
    return answer == answers_.end() ? Value{} : answer->second(arguments);
}

ScriptedPtr ScriptedObject::Child(const std::string& name) {
    auto& child = children_[name];
    if (!child) child = std::make_shared<ScriptedObject>();
    return child;
}

void ScriptedObject::Refuses(const std::string& member, int number, std::string description) {
    refusals_.emplace(member, AutomationError(number, description));
}

void ScriptedObject::RefuseIfTold(std::string_view member) const {
    const auto refusal = refusals_.find(member);
    if (refusal != refusals_.end()) throw refusal->second;
}

ScriptedPtr ScriptedApplication() {
    auto application = std::make_shared<ScriptedObject>();
    MakeCountable(application->Child("Documents"), MakeDocument);
    return application;
}

}  // namespace quillmark::word::test
