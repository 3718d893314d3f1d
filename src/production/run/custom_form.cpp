#include "production/run/custom_form.h"

#include <algorithm>
#include <optional>

#include "core/field_registry.h"
#include "platform/paths.h"
#include "production/kit/field_pictures.h"
#include "production/pdf/form_copy.h"

namespace quillmark {

namespace {

constexpr std::string_view kFromClipboard = "^c";
/// The most that a search or replacement may hold, codes counted as they are written.
constexpr std::size_t kLongestCode = 255;
/// From this version on a paste can keep the source's formatting.
constexpr double kKeepsSourceFormatting = 12;
/// The form's number among the open documents: the latest opened is the first.
constexpr int kForm = 1;

std::size_t Characters(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string WithParagraphEnds(std::string_view text) {
    std::string ends;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool endsPair = text[at] == '\n' && at > 0 && text[at - 1] == '\r';
        if (!endsPair) ends += text[at] == '\n' ? '\r' : text[at];
    }
    return ends;
}

/// The text as the word processor's search takes it: a caret begins a code there.
std::string WithoutCodes(std::string_view text) {
    std::string plain;
    for (const char c : text) plain += c == '^' ? "^^" : std::string(1, c);
    return plain;
}

/// The picture that the marker stands for; empty for a text.
std::string_view PictureOfMarker(const FormMarker& marker, const Job& job) {
    const bool holdsPicture = marker.field > 0 && marker.form == 0 && job.D(marker.field) == kImageLiteral;
    return holdsPicture ? job.FieldPictures[static_cast<std::size_t>(marker.field)] : std::string_view();
}

/// One form on its way into the run's document.
class FormMerge {
 public:
    FormMerge(const Production& production, WordSession& session, std::string_view name)
        : production_(production), session_(session), name_(name) {}

    void Run() {
        const auto list = MarkerFile(production_.CustomFormsFolder, name_);
        Open();
        for (const FormMarker& marker : ReadFormMarkers(list)) Replace(marker);
        ReplaceSectionBreaks();
        Paste();
        Form().Close(false);
        session_.clipboard->Clear();
    }

 private:
    word::Document Form() const { return session_.WordApp.Documents(kForm); }

    void Open() {
        const std::string found = FormFileOf(production_.CustomFormsFolder, name_);
        const auto file = production_.CustomFormsFolder / PathOf(found.empty() ? name_ + ".docx" : found);
        readable_.emplace(file, session_.isEmbedded);
        session_.WordApp.Documents.Open(TextOf(readable_->path()));
    }

    void Replace(const FormMarker& marker) const {
        const std::string code = CodeFor(marker);
        const std::string sought = WithoutCodes(marker.marker);
        Form().Content.Find.ReplaceAll(sought, code);
        if (session_.isEmbedded) return;
        for (const word::Range& story : Form().OtherStories()) story.Find.ReplaceAll(sought, code);
    }

    std::string CodeFor(const FormMarker& marker) const {
        const std::string_view picture = PictureOfMarker(marker, production_.job);
        if (!picture.empty()) {
            if (!IsReadablePicture(picture)) return WithoutCodes(FieldMarker(marker.field));
            session_.clipboard->SetPicture(std::string(picture),
                                           DescriptionOfPicture(JobValues(production_.job)));
            return std::string(kFromClipboard);
        }
        const std::string value = ValueOfMarker(marker, production_.job);
        std::string code = WithoutCodes(value);
        if (Characters(value) <= kLongestReplacement && Characters(code) <= kLongestCode) return code;
        session_.clipboard->SetText(value);
        return std::string(kFromClipboard);
    }

    void ReplaceSectionBreaks() const {
        if (!Form().Content.Find.Execute("^b")) return;
        Form().Content.Find.ReplaceAll("^b", "^m");
        production_.dialogs.Tell(" ",
                                 name_ +
                                     ": Section Breaks(s) detected & replaced in this form.\n"
                                     "Please review this document's format after Create",
                                 DialogIcon::Information);
    }

    void Paste() const {
        const word::Document form = Form();
        form.Select();
        session_.WordApp.Selection.Copy();
        if (production_.documents.size() == 1) session_.WordDoc.DefaultTabStop = form.DefaultTabStop.Read();
        if (session_.WordApp.Version() >= kKeepsSourceFormatting)
            session_.WordSel.PasteAndFormat(word::FormatOriginalFormatting);
        else
            session_.WordSel.Paste();
    }

    const Production& production_;
    WordSession& session_;
    std::string name_;
    std::optional<ReadableForm> readable_;
};

}  // namespace

std::string_view FormOfEntry(std::string_view entry) {
    if (entry.starts_with('[')) entry.remove_prefix(1);
    if (entry.ends_with(']')) entry.remove_suffix(1);
    // One blank on either side belongs to the brackets.
    if (entry.starts_with(' ')) entry.remove_prefix(1);
    if (entry.ends_with(' ')) entry.remove_suffix(1);
    return entry;
}

std::string ValueOfMarker(const FormMarker& marker, const Job& job) {
    const bool isUserField = marker.form == 0 && marker.field == 0;
    const std::string_view value = isUserField ? job.UserField(marker.marker)
                                               : std::string_view(job.D(marker.form * 1000 + marker.field));
    return WithParagraphEnds(value.empty() ? std::string_view(marker.marker) : value);
}

void TypeCustomForm(std::string_view entry, const Production& production, WordSession& session) {
    FormMerge(production, session, FormOfEntry(entry)).Run();
}

}  // namespace quillmark
