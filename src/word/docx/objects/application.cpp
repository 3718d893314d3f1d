#include "word/docx/objects/application.h"

#include "word/docx/objects/engine_hints.h"
#include "word/docx/objects/selection.h"

namespace quillmark::word::docx::objects {
namespace {

/// The version that the engine's behaviour is modelled on.
constexpr const char* kVersion = "16.0";

}  // namespace

// ---- Options ----

class ApplicationObject::Options final : public LateBound<Options> {
 public:
    static constexpr const char* kName = "Options";
    static const MemberTable<Options>& Members() {
        static const MemberTable<Options> members = {
            Switch<&EngineState::checkSpelling>("CheckSpellingAsYouType"),
            Switch<&EngineState::checkGrammar>("CheckGrammarAsYouType"),
        };
        return members;
    }

    explicit Options(EngineState& engine) : engine_(engine) {}
    void CheckAlive() const { engine_.CheckRunning(); }

 private:
    template <bool EngineState::*member>
    static Member<Options> Switch(std::string_view name) {
        return {name, [](Options& options, Arguments) { return Value(options.engine_.*member); },
                [](Options& options, const Value& value) { options.engine_.*member = FlagOf(value); }};
    }

    EngineState& engine_;
};

// ---- Documents ----

class ApplicationObject::Documents final : public LateBound<Documents> {
 public:
    static constexpr const char* kName = "Documents";
    static const MemberTable<Documents>& Members() {
        static const MemberTable<Documents> members = {
            {"Add", nullptr, nullptr,
             [](Documents& documents, Arguments arguments) {
                 ExpectNoArguments(arguments);
                 return Value(ObjectPtr(documents.engine_.AddDocument().Self()));
             }},
            {"Open", nullptr, nullptr,
             [](Documents& documents, Arguments arguments) { return documents.Open(arguments); }},
            {"Item", [](Documents& documents, Arguments arguments) { return documents.Item(arguments); }},
            {"Count",
             [](Documents& documents, Arguments) {
                 return Whole(static_cast<int>(documents.engine_.documents().size()));
             }},
        };
        return members;
    }

    explicit Documents(EngineState& engine) : engine_(engine) {}
    void CheckAlive() const { engine_.CheckRunning(); }

 private:
    Value Open(Arguments arguments) {
        const ArgumentReader reader(arguments,
                                    {"FileName", "ConfirmConversions", "ReadOnly", "AddToRecentFiles"});
        return ObjectPtr(engine_.OpenFile(StringOf(reader["FileName"])).Self());
    }
    Value Item(Arguments arguments) {
        const Value& index = ArgumentReader(arguments, {"Index"})["Index"];
        const auto* name = std::get_if<std::string>(&index);
        const int number = name ? 0 : WholeOf(index);
        int count = 0;
        for (const auto& document : engine_.documents())
            if (++count == number || (name && document->name() == *name)) return ObjectPtr(document);
        RefuseElement();
    }

    EngineState& engine_;
};

// ---- Application ----

ApplicationObject::ApplicationObject(EngineOptions options)
    : engine_(std::make_shared<EngineState>(std::move(options))),
      settings_(std::make_unique<Options>(*engine_)),
      documents_(std::make_unique<Documents>(*engine_)) {}

ApplicationObject::~ApplicationObject() = default;

struct ApplicationMembers {
    static Value InchesToPoints(ApplicationObject&, Arguments arguments) {
        return NumberOf(ArgumentReader(arguments, {"Inches"})["Inches"]) * 72;
    }
    static Value Quit(ApplicationObject& application, Arguments arguments) {
        if (ArgumentReader(arguments, {"SaveChanges"}).Flag("SaveChanges", false))
            throw AutomationError(error::kBadValue, "Save the documents before quitting");
        application.engine_->Quit();
        return Value();
    }
    static Value Selection(ApplicationObject& application, Arguments) {
        OpenDocument& document = application.engine_->Active();
        return document.Share(document.selection());
    }
    static Value Documents(ApplicationObject& application, Arguments index) {
        return CollectionOrItem(application.Share(*application.documents_), index);
    }
    static Value Options(ApplicationObject& application, Arguments) {
        return application.Share(*application.settings_);
    }
    static void SetWindowState(ApplicationObject& application, const Value& value) {
        application.engine_->windowState = WholeWithin(value, 0, 2);
    }
};

const MemberTable<ApplicationObject>& ApplicationObject::Members() {
    using Own = ApplicationMembers;
    using Self = ApplicationObject;
    // clang-format off
    static const MemberTable<ApplicationObject> members = {
        {"ActiveDocument", [](Self& self, Arguments) { return Value(ObjectPtr(self.engine_->Active().Self())); }},
        {"Documents",      Own::Documents},
        {"Options",        Own::Options},
        {"Selection",      Own::Selection},
        {"Version",        [](Self&, Arguments) { return Value(std::string(kVersion)); }},
        {"Visible",        [](Self& self, Arguments) { return Value(self.engine_->visible); },
                           [](Self& self, const Value& value) { self.engine_->visible = FlagOf(value); }},
        {"WindowState",    [](Self& self, Arguments) { return Whole(self.engine_->windowState); },
                           Own::SetWindowState},
        {"Activate",       nullptr, nullptr,
                           [](Self&, Arguments arguments) { ExpectNoArguments(arguments); return Value(); }},
        {"InchesToPoints", nullptr, nullptr, Own::InchesToPoints},
        {"Quit",           nullptr, nullptr, Own::Quit},
    };
    // clang-format on
    return members;
}

ObjectPtr StartEngine(EngineOptions options) {
    return std::make_shared<ApplicationObject>(std::move(options));
}

const Document& ModelOf(const ObjectPtr& document) {
    return ObjectOf<OpenDocument>(document)->model();
}

std::shared_ptr<Hints> HintsOf(const ObjectPtr& application) {
    const auto found = std::dynamic_pointer_cast<ApplicationObject>(application);
    if (!found) throw AutomationError(error::kTypeMismatch, "Type mismatch: no Application");
    return std::make_shared<EngineHints>(found->engine());
}

std::filesystem::path PathOf(const ObjectPtr& document) {
    return ObjectOf<OpenDocument>(document)->path();
}

}  // namespace quillmark::word::docx::objects
