#include "word/trace.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillmark::word {
namespace {

// ---- Plain values as text ----

std::string Quoted(std::string_view text) {
    static constexpr std::string_view kEscaped = "\r\n\t\v\"\\";
    static constexpr std::string_view kLetters = "rntv\"\\";
    std::string quoted = "\"";
    for (const char c : text) {
        const std::size_t at = kEscaped.find(c);
        if (at == std::string_view::npos) {
            quoted += c;
        } else {
            quoted += {'\\', kLetters[at]};
        }
    }
    return quoted + '"';
}

/// Six decimals: finer than any distance of the model, and 50.4 stays 50.4.
std::string Decimal(double number) {
    std::string text = fmt::format("{:.6f}", number);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text == "-0" ? "0" : text;
}

// ---- What the whole trace knows ----

/// A document that a call gave.
struct KnownDocument {
    ObjectPtr object;
};
using KnownDocumentPtr = std::shared_ptr<KnownDocument>;

class Recorder {
 public:
    explicit Recorder(std::function<void(std::string_view)> line) : line_(std::move(line)) {}

    void Write(const std::string& line) {
        ++written_;
        line_(line);
    }
    std::size_t written() const { return written_; }
    /// As if an operation had been written: ranges reached before this are kept ones from now on.
    void Pass() { ++written_; }
    int NextKeptRange() { return ++keptRanges_; }

    KnownDocumentPtr Opened(const ObjectPtr& object);
    KnownDocumentPtr Find(const ObjectPtr& object, const Value& index) const;
    KnownDocumentPtr active() const { return active_; }
    std::string NameOf(const KnownDocumentPtr& document) const;
    /// What a document's own method changes in the order of documents.
    void Called(const KnownDocumentPtr& document, std::string_view method);

 private:
    std::function<void(std::string_view)> line_;
    std::size_t written_ = 0;
    int keptRanges_ = 0;
    std::vector<KnownDocumentPtr> documents_;  ///< the latest opened first, as the word processor counts
    KnownDocumentPtr active_;
};

KnownDocumentPtr Recorder::Opened(const ObjectPtr& object) {
    active_ = Find(object, {});
    if (!active_) {
        active_ = std::make_shared<KnownDocument>(KnownDocument{object});
        documents_.insert(documents_.begin(), active_);
    }
    return active_;
}

KnownDocumentPtr Recorder::Find(const ObjectPtr& object, const Value& index) const {
    for (const auto& document : documents_) {
        if (document->object == object) return document;
    }
    const auto* number = std::get_if<std::int32_t>(&index);
    const bool known = number && *number >= 1 && static_cast<std::size_t>(*number) <= documents_.size();
    return known ? documents_[static_cast<std::size_t>(*number) - 1] : nullptr;
}

std::string Recorder::NameOf(const KnownDocumentPtr& document) const {
    if (document == active_) return "ActiveDocument";
    const auto found = std::find(documents_.begin(), documents_.end(), document);
    if (found == documents_.end()) return "Documents(closed)";
    return fmt::format("Documents({})", found - documents_.begin() + 1);
}

void Recorder::Called(const KnownDocumentPtr& document, std::string_view method) {
    if (method == "Select" || method == "Activate") active_ = document;
    if (method != "Close") return;
    std::erase(documents_, document);
    if (active_ == document) active_ = documents_.empty() ? nullptr : documents_.front();
}

// ---- Objects ----

/// The objects that the naming rules single out.
enum class Kind { Plain, Application, Documents, Document, Selection, Range };

class TracedObject : public Object, public std::enable_shared_from_this<TracedObject> {
 public:
    using Name = std::function<std::string()>;

    TracedObject(ObjectPtr inner, std::shared_ptr<Recorder> recorder, Kind kind, Name name,
                 KnownDocumentPtr document = nullptr)
        : inner_(std::move(inner)),
          recorder_(std::move(recorder)),
          kind_(kind),
          name_(std::move(name)),
          document_(std::move(document)) {}

    Value Get(std::string_view member, Arguments arguments) override;
    void Put(std::string_view member, const Value& value) override;
    Value Call(std::string_view member, Arguments arguments) override;

    static ObjectPtr Unwrap(const ObjectPtr& object);

 private:
    /// Runs the operation; a refusal is written behind `line()`.
    template <class Line, class Operation>
    auto Attempt(Line line, Operation operation) const;

    std::string MemberName(std::string_view member) const;
    std::string ElementName(std::string_view member, Arguments arguments) const;
    /// The traced object for one reached by a property, or as an element with these arguments.
    ObjectPtr Reached(const ObjectPtr& object, std::string_view member, Arguments arguments);
    ObjectPtr ReachedDocument(const ObjectPtr& object, Name name, KnownDocumentPtr document) const;
    /// The traced object for one that a call gave, `call` being the line of that call.
    ObjectPtr Given(const ObjectPtr& object, std::string_view member, const std::string& call);

    ObjectPtr Wrap(const ObjectPtr& object, Name name, Kind kind = Kind::Plain) const {
        return std::make_shared<TracedObject>(object, recorder_, kind, std::move(name));
    }
    Name Below(std::string suffix);
    Name SelectionRange() const;

    static Value Unwrap(const Value& value);
    static std::vector<Argument> Unwrap(Arguments arguments);
    static std::string Text(const Value& value);
    static std::string Text(Arguments arguments);

    ObjectPtr inner_;
    std::shared_ptr<Recorder> recorder_;
    Kind kind_;
    Name name_;
    KnownDocumentPtr document_;
};

// ---- Operations ----

template <class Line, class Operation>
auto TracedObject::Attempt(Line line, Operation operation) const {
    try {
        return operation();
    } catch (const AutomationError& refusal) {
        recorder_->Write(fmt::format("{} ! {} {}", line(), refusal.number(), Quoted(refusal.what())));
        throw;
    }
}

Value TracedObject::Get(std::string_view member, Arguments arguments) {
    const auto name = [&] { return ElementName(member, arguments); };
    Value value = Attempt(name, [&] { return inner_->Get(member, Unwrap(arguments)); });
    const auto* object = std::get_if<ObjectPtr>(&value);
    if (object && *object) return Reached(*object, member, arguments);
    recorder_->Write(fmt::format("{} -> {}", name(), Text(value)));
    return value;
}

void TracedObject::Put(std::string_view member, const Value& value) {
    const std::string line = fmt::format("{} = {}", MemberName(member), Text(value));
    Attempt([&] { return line; }, [&] { inner_->Put(member, Unwrap(value)); });
    recorder_->Write(line);
}

/// The line is made first: the call may change what its object is named by.
Value TracedObject::Call(std::string_view member, Arguments arguments) {
    const bool reaches = member == "Cell";
    // A break goes in at a range that was kept for it, also where nothing was typed in between.
    if (kind_ == Kind::Range && member == "InsertBreak") recorder_->Pass();
    std::string line = reaches ? ElementName(member, arguments) : MemberName(member);
    if (!reaches && !arguments.empty()) line += " " + Text(arguments);
    Value result = Attempt([&] { return line; }, [&] { return inner_->Call(member, Unwrap(arguments)); });
    const auto* given = std::get_if<ObjectPtr>(&result);
    const ObjectPtr object = given ? *given : nullptr;
    if (reaches && object) return Reached(object, member, arguments);
    recorder_->Write(line);
    if (document_) recorder_->Called(document_, member);
    return object ? Given(object, member, line) : result;
}

// ---- Names ----

std::string TracedObject::MemberName(std::string_view member) const {
    static constexpr std::string_view kGlobals[] = {"Documents", "Selection", "ActiveDocument"};
    const bool global =
        kind_ == Kind::Application && std::ranges::find(kGlobals, member) != std::end(kGlobals);
    return global ? std::string(member) : fmt::format("{}.{}", name_(), member);
}

std::string TracedObject::ElementName(std::string_view member, Arguments arguments) const {
    std::string name = member == "Item" ? name_() : MemberName(member);
    return arguments.empty() ? name : fmt::format("{}({})", name, Text(arguments));
}

TracedObject::Name TracedObject::Below(std::string suffix) {
    return [owner = shared_from_this(), suffix = std::move(suffix)] { return owner->name_() + suffix; };
}

/// The range's own line counts as no other operation, however often that line names the range.
TracedObject::Name TracedObject::SelectionRange() const {
    return [recorder = recorder_, upTo = recorder_->written(), number = 0]() mutable {
        if (number == 0 && recorder->written() > upTo) number = recorder->NextKeptRange();
        upTo = recorder->written() + 1;
        return number == 0 ? std::string("Selection.Range") : fmt::format("Range({})", number);
    };
}

ObjectPtr TracedObject::Reached(const ObjectPtr& object, std::string_view member, Arguments arguments) {
    if (kind_ == Kind::Selection && member == "Range") return Wrap(object, SelectionRange(), Kind::Range);
    if (kind_ == Kind::Documents && member == "Item") {
        const Value index = arguments.empty() ? Value{} : arguments.front().value;
        return ReachedDocument(object, Below(fmt::format("({})", Text(arguments))),
                               recorder_->Find(object, index));
    }
    if (kind_ == Kind::Application) {
        if (member == "ActiveDocument" && recorder_->active()) {
            const auto document = recorder_->active();
            return ReachedDocument(
                object, [r = recorder_, document] { return r->NameOf(document); }, document);
        }
        const Kind kind = member == "Documents"   ? Kind::Documents
                          : member == "Selection" ? Kind::Selection
                                                  : Kind::Plain;
        return Wrap(
            object, [name = MemberName(member)] { return name; }, kind);
    }
    std::string suffix = member == "Item" ? "" : fmt::format(".{}", member);
    if (!arguments.empty()) suffix += fmt::format("({})", Text(arguments));
    return Wrap(object, Below(std::move(suffix)));
}

ObjectPtr TracedObject::ReachedDocument(const ObjectPtr& object, Name name, KnownDocumentPtr document) const {
    return std::make_shared<TracedObject>(object, recorder_, Kind::Document, std::move(name),
                                          std::move(document));
}

ObjectPtr TracedObject::Given(const ObjectPtr& object, std::string_view member, const std::string& call) {
    if (kind_ == Kind::Documents) {
        const auto document = recorder_->Opened(object);
        return ReachedDocument(
            object, [r = recorder_, document] { return r->NameOf(document); }, document);
    }
    if (member == "Add") {
        try {
            return Wrap(object, Below(fmt::format("({})", Text(inner_->Get("Count")))));
        } catch (const AutomationError&) {
            // A collection that cannot be counted: its element is named by the call that made it.
        }
    }
    return Wrap(object, [call] { return call; });
}

// ---- What passes through ----

ObjectPtr TracedObject::Unwrap(const ObjectPtr& object) {
    const auto traced = std::dynamic_pointer_cast<TracedObject>(object);
    return traced ? traced->inner_ : object;
}

Value TracedObject::Unwrap(const Value& value) {
    const auto* object = std::get_if<ObjectPtr>(&value);
    return object ? Value(Unwrap(*object)) : value;
}

std::vector<Argument> TracedObject::Unwrap(Arguments arguments) {
    std::vector<Argument> unwrapped;
    for (const auto& argument : arguments) unwrapped.push_back({Unwrap(argument.value), argument.name});
    return unwrapped;
}

std::string TracedObject::Text(const Value& value) {
    struct Writer {
        std::string operator()(std::monostate) const { return "Empty"; }
        std::string operator()(bool flag) const { return flag ? "True" : "False"; }
        std::string operator()(std::int32_t number) const { return std::to_string(number); }
        std::string operator()(double number) const { return Decimal(number); }
        std::string operator()(const std::string& text) const { return Quoted(text); }
        std::string operator()(const ObjectPtr& object) const {
            const auto traced = std::dynamic_pointer_cast<TracedObject>(object);
            return traced ? traced->name_() : "Nothing";
        }
    };
    return std::visit(Writer{}, value);
}

std::string TracedObject::Text(Arguments arguments) {
    std::string text;
    for (const auto& argument : arguments) {
        if (!text.empty()) text += ", ";
        if (!argument.name.empty()) text += fmt::format("{}:=", argument.name);
        text += Text(argument.value);
    }
    return text;
}

}  // namespace

ObjectPtr Trace(ObjectPtr application, std::function<void(std::string_view line)> line) {
    return std::make_shared<TracedObject>(std::move(application), std::make_shared<Recorder>(std::move(line)),
                                          Kind::Application, [] { return std::string("Application"); });
}

ObjectPtr Untraced(const ObjectPtr& object) {
    return TracedObject::Unwrap(object);
}

}  // namespace quillmark::word
