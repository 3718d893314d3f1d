#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "word/docx/edit/editor.h"
#include "word/docx/objects/late_bound.h"

namespace quillmark::word::docx::objects {

class EngineState;
class SelectionObject;
struct DocumentParts;

/// How the window shows the document.
struct ViewState {
    int type = 3;
    int pageFit = 0;
    int zoomPercentage = 100;
};

/// A document that is open: its Document object, and what all objects of its parts share.
class OpenDocument final : public Shared, public LateBound<OpenDocument> {
 public:
    static constexpr const char* kName = "Document";
    static const MemberTable<OpenDocument>& Members();

    /// `path` is empty for a new document, whose name is then "Document1" or the like.
    OpenDocument(std::weak_ptr<EngineState> engine, std::unique_ptr<Document> model, std::string name,
                 std::filesystem::path path);
    ~OpenDocument() override;

    /// Throws kServerGone after the application has quit and kObjectDeleted after the document was closed.
    void CheckAlive() const;
    void MarkClosed() { isClosed_ = true; }
    void MarkServerGone() { isServerGone_ = true; }

    edit::Editor& editor() { return editor_; }
    Document& model() { return editor_.document(); }
    const Document& model() const { return editor_.document(); }
    EngineState& engine() const;
    SelectionObject& selection();
    ViewState& view() { return view_; }
    /// The page before a paste brought another one, until a section break ends the pasted text.
    std::optional<SectionProperties>& pageBeforePaste() { return pageBeforePaste_; }
    const std::filesystem::path& path() const { return path_; }
    const std::string& name() const { return name_; }

    /// Notes that the document differs from its file.
    void Changed() { isSaved_ = false; }
    bool isSaved() const { return isSaved_; }
    /// Throws kNotAvailable when the document is protected and the place is in a protected section, or in a
    /// header or footer.
    void RequireEditable(const Place& place);

    std::shared_ptr<OpenDocument> Self() {
        return std::static_pointer_cast<OpenDocument>(shared_from_this());
    }

 private:
    friend struct DocumentMembers;
    void Select(Arguments arguments);
    void Protect(Arguments arguments);
    void SaveTo(const std::filesystem::path& path);
    void Save(Arguments arguments);
    void SaveAs(Arguments arguments);
    void Close(Arguments arguments);

    std::weak_ptr<EngineState> engine_;
    edit::Editor editor_;
    std::string name_;
    std::filesystem::path path_;
    ViewState view_;
    std::optional<SectionProperties> pageBeforePaste_;
    bool isSaved_ = true;
    bool isClosed_ = false;
    bool isServerGone_ = false;
    std::unique_ptr<DocumentParts> parts_;
};

/// An object of one of the document's parts, which lives as long as the document.
template <class T>
class DocumentPart : public LateBound<T> {
 public:
    explicit DocumentPart(OpenDocument& document) : document_(document) {}
    OpenDocument& document() { return document_; }
    void CheckAlive() const { document_.CheckAlive(); }

 protected:
    OpenDocument& document_;
};

}  // namespace quillmark::word::docx::objects
