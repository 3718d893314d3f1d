#include "production/engine_desk.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "production/builders/builder_list.h"
#include "production/reading.h"
#include "production/sample_deal.h"
#include "word/docx/objects/engine.h"
#include "word/trace.h"

namespace quillmark::test {

using word::Arguments;
using word::Value;

/// The engine's objects on the way to those that a test refuses.
class EngineDesk::Altered : public word::Object {
 public:
    Altered(EngineDesk& desk, word::ObjectPtr inner, std::string path)
        : desk_(desk), inner_(std::move(inner)), path_(std::move(path)) {}

    Value Get(std::string_view member, Arguments arguments) override {
        if (member == "Version" && !desk_.version_.empty()) return desk_.version_;
        std::string path = path_.empty() ? std::string(member) : path_ + "." + std::string(member);
        if (member == "Item") path = fmt::format("{}({})", path_, Shown(arguments.front().value));
        return Along(path, [&] { return inner_->Get(member, arguments); });
    }
    void Put(std::string_view member, const Value& value) override { inner_->Put(member, value); }
    Value Call(std::string_view member, Arguments arguments) override {
        const bool isNew = path_ == "Documents" && member == "Add";
        return Along(isNew ? "ActiveDocument" : "", [&] { return inner_->Call(member, arguments); });
    }

 private:
    static std::string Shown(const Value& value) {
        if (const auto* text = std::get_if<std::string>(&value)) return "\"" + *text + "\"";
        return fmt::format("{}", std::get<std::int32_t>(value));
    }

    template <class Reach>
    Value Along(const std::string& path, const Reach& reach) {
        if (const auto refused = desk_.refused_.find(path); refused != desk_.refused_.end())
            throw word::AutomationError(refused->second, path);
        const Value value = reach();
        const auto* object = std::get_if<word::ObjectPtr>(&value);
        const bool isOnTheWay =
            path == "Documents" || std::ranges::any_of(desk_.refused_, [&](const auto& refused) {
                return refused.first.starts_with(path);
            });
        if (!object || path.empty() || !isOnTheWay) return value;
        return word::ObjectPtr(std::make_shared<Altered>(desk_, *object, path));
    }

    EngineDesk& desk_;
    word::ObjectPtr inner_;
    std::string path_;
};

EngineDesk::EngineDesk(Bare)
    : engine_(word::docx::objects::StartEngine({.folder = {}, .clipboard = clipboard_})),
      hints_(word::docx::objects::HintsOf(engine_)),
      session(word::Trace(std::make_shared<Altered>(*this, engine_, ""),
                          [this](std::string_view line) { operations.emplace_back(line); }),
              clipboard_, hints_) {}

EngineDesk::EngineDesk() : EngineDesk(Bare{}) {
    SetUpWordSession(session);
    operations.clear();
}

void EngineDesk::Type(std::string_view document, const Job& job, std::vector<std::string> documents) {
    Production production = From(job);
    production.documents = documents;
    Type(document, production);
}

void EngineDesk::Type(std::string_view document, const Production& production) {
    TypeDocument(*FindBuilder(document), production, session);
}

bool EngineDesk::Did(std::string_view line) const {
    return std::ranges::find(operations, line) != operations.end();
}

const word::docx::Document& EngineDesk::Model() const {
    return word::docx::objects::ModelOf(word::Application(engine_).ActiveDocument.Reach());
}

std::string EngineDesk::LeftOver() const {
    const word::Selection selection = word::Application(engine_).Selection;
    const auto& last = std::get<word::docx::Paragraph>(Model().body.back());
    const word::docx::ParaFormat& format = Model().paraFormats[last.format];
    std::vector<std::string_view> left;
    const auto look = [&](bool isLeft, std::string_view what) {
        if (isLeft) left.push_back(what);
    };
    look(selection.Font.Bold, "bold");
    look(selection.Font.Italic, "italic");
    look(int(selection.Font.Underline) != 0, "underline");
    look(selection.Font.Superscript, "raised");
    look(format.leftIndent.value_or(0) != 0, "left indent");
    look(format.rightIndent.value_or(0) != 0, "right indent");
    look(format.spaceAfter.value_or(0) != 0, "space after");
    look(format.line.value_or(240) != 240, "line spacing");
    look(!format.tabs.empty(), "tab stops");
    look(format.numId.value_or(0) != 0, "a list");
    return fmt::format("{}", fmt::join(left, ", "));
}

std::string EngineDesk::Text() const {
    return CharactersOf(Model());
}

std::string EngineDesk::Reading() const {
    return ReadingOf(Model());
}

}  // namespace quillmark::test
