#include "word/docx/objects/open_document.h"

#include "word/docx/objects/document_parts.h"
#include "word/docx/objects/engine_state.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/selection.h"
#include "word/docx/write/document_writer.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr int kLargestTabStop = 1584;

/// A file name without the ending of a .docx gets it.
std::filesystem::path WithEnding(std::filesystem::path path) {
    const std::string ending = path.extension().string();
    if (ending != ".docx" && ending != ".DOCX") path += ".docx";
    return path;
}

}  // namespace

OpenDocument::OpenDocument(std::weak_ptr<EngineState> engine, std::unique_ptr<Document> model,
                           std::string name, std::filesystem::path path)
    : engine_(std::move(engine)),
      editor_(std::move(model)),
      name_(std::move(name)),
      path_(std::move(path)),
      parts_(std::make_unique<DocumentParts>(*this)) {}

OpenDocument::~OpenDocument() = default;

void OpenDocument::CheckAlive() const {
    if (isServerGone_ || engine_.expired())
        throw AutomationError(error::kServerGone,
                              "The remote server machine does not exist or is unavailable");
    if (isClosed_) throw AutomationError(error::kObjectDeleted, "Object has been deleted.");
}

EngineState& OpenDocument::engine() const {
    const auto engine = engine_.lock();
    if (!engine) throw AutomationError(error::kServerGone, "The word processor is gone");
    return *engine;
}

SelectionObject& OpenDocument::selection() {
    return parts_->selection;
}

void OpenDocument::RequireEditable(const Place& place) {
    if (model().protection != AllowOnlyFormFields) return;
    const SectionProperties* const section = editor_.SectionAt(place);
    if (section && !section->protectedForForms) return;
    throw AutomationError(
        error::kNotAvailable,
        "This method or property is not available because the document is a protected document.");
}

// ---- Members ----

struct DocumentMembers {
    template <auto part>
    static Value Part(OpenDocument& document, Arguments) {
        return document.Share(document.parts_.get()->*part);
    }
    template <auto part>
    static Value Collection(OpenDocument& document, Arguments index) {
        return CollectionOrItem(document.Share(document.parts_.get()->*part), index);
    }
    template <auto method>
    static Value Call(OpenDocument& document, Arguments arguments) {
        (document.*method)(arguments);
        return Value();
    }
    static Value Content(OpenDocument& document, Arguments) {
        return ObjectPtr(RangeOver(document, document.model().body, RangeObject::Extent::Story));
    }
    static void SetDefaultTabStop(OpenDocument& document, const Value& value) {
        const int twips = TwipsOf(value, 0.05, kLargestTabStop);
        document.model().defaultTabStop = twips;
        document.Changed();
    }
};

const MemberTable<OpenDocument>& OpenDocument::Members() {
    using Own = DocumentMembers;
    using Parts = DocumentParts;
    // clang-format off
    static const MemberTable<OpenDocument> members = {
        {"ActiveWindow",   Own::Part<&Parts::window>},
        {"Bookmarks",      Own::Collection<&Parts::bookmarks>},
        {"Content",        Own::Content},
        {"FormFields",     Own::Collection<&Parts::formFields>},
        {"InlineShapes",   Own::Part<&Parts::inlineShapes>},
        {"ListTemplates",  Own::Collection<&Parts::listTemplates>},
        {"PageSetup",      Own::Part<&Parts::pageSetup>},
        {"Sections",       Own::Collection<&Parts::sections>},
        {"Styles",         Own::Collection<&Parts::styles>},
        {"Tables",         Own::Collection<&Parts::tables>},
        {"DefaultTabStop", [](OpenDocument& document, Arguments) { return PointsOf(document.model().defaultTabStop); },
                           Own::SetDefaultTabStop},
        {"ProtectionType", [](OpenDocument& document, Arguments) { return Whole(document.model().protection); }},
        {"Saved",          [](OpenDocument& document, Arguments) { return Value(document.isSaved_); },
                           [](OpenDocument& document, const Value& value) { document.isSaved_ = FlagOf(value); }},
        {"Close",          nullptr, nullptr, Own::Call<&OpenDocument::Close>},
        {"Protect",        nullptr, nullptr, Own::Call<&OpenDocument::Protect>},
        {"Save",           nullptr, nullptr, Own::Call<&OpenDocument::Save>},
        {"SaveAs",         nullptr, nullptr, Own::Call<&OpenDocument::SaveAs>},
        {"Select",         nullptr, nullptr, Own::Call<&OpenDocument::Select>},
    };
    // clang-format on
    return members;
}

void OpenDocument::Select(Arguments arguments) {
    ExpectNoArguments(arguments);
    engine().Activate(*this);
    selection().SelectAll(model().body);
}

void OpenDocument::Protect(Arguments arguments) {
    const ArgumentReader reader(arguments, {"Type", "NoReset", "Password"});
    if (WholeOf(reader["Type"]) != AllowOnlyFormFields)
        throw AutomationError(error::kBadValue, "No such kind of protection");
    if (model().protection != NoProtection)
        throw AutomationError(error::kNotAvailable, "The document is protected already");
    model().protection = AllowOnlyFormFields;
    Changed();
}

// ---- Files ----

void OpenDocument::SaveTo(const std::filesystem::path& path) {
    write::SaveDocx(model(), path);
    path_ = path;
    name_ = path.filename().string();
    isSaved_ = true;
}

void OpenDocument::Save(Arguments arguments) {
    ExpectNoArguments(arguments);
    if (path_.empty()) throw AutomationError(error::kNotAvailable, "The document has no file name yet");
    SaveTo(path_);
}

void OpenDocument::SaveAs(Arguments arguments) {
    const std::string& fileName = StringOf(ArgumentReader(arguments, {"FileName", "FileFormat"})["FileName"]);
    if (fileName.empty()) throw AutomationError(error::kPathNotFound, "A document needs a file name");
    SaveTo(WithEnding(engine().PathOf(fileName)));
}

void OpenDocument::Close(Arguments arguments) {
    const bool save = ArgumentReader(arguments, {"SaveChanges"}).Flag("SaveChanges", false);
    if (save && !isSaved_) Save({});
    engine().Close(*this);
}

}  // namespace quillmark::word::docx::objects
