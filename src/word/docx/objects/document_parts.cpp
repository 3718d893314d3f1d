#include "word/docx/objects/document_parts.h"

#include "word/docx/model/style_look.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr int kNoPageFit = 0;

/// A style, known by its id.
class StyleObject final : public LateBound<StyleObject> {
 public:
    static constexpr const char* kName = "Style";
    static const MemberTable<StyleObject>& Members() {
        static const MemberTable<StyleObject> members = {
            {"NoSpaceBetweenParagraphsOfSameStyle",
             [](StyleObject& style, Arguments) { return Value(HasContextualSpacing(style.Definition())); },
             [](StyleObject& style, const Value& value) {
                 SetContextualSpacing(style.Definition(), FlagOf(value));
                 style.document_->Changed();
             }},
        };
        return members;
    }

    StyleObject(std::shared_ptr<OpenDocument> document, std::string name)
        : document_(std::move(document)), name_(std::move(name)) {}
    void CheckAlive() const { document_->CheckAlive(); }

 private:
    StyleDefinition& Definition() {
        if (StyleDefinition* style = FindStyle(document_->model(), name_)) return *style;
        throw AutomationError(error::kObjectDeleted, "Object has been deleted.");
    }

    std::shared_ptr<OpenDocument> document_;
    std::string name_;
};

}  // namespace

const MemberTable<StylesObject>& StylesObject::Members() {
    static const MemberTable<StylesObject> members = {
        {"Item", [](StylesObject& styles, Arguments arguments) { return styles.Item(arguments); }},
    };
    return members;
}

Value StylesObject::Item(Arguments arguments) {
    const std::string& name = StringOf(ArgumentReader(arguments, {"Index"})["Index"]);
    if (!FindStyle(document_.model(), name)) RefuseElement();
    return ObjectPtr(std::make_shared<StyleObject>(document_.Self(), name));
}

// ---- The window ----

const MemberTable<ZoomObject>& ZoomObject::Members() {
    static const MemberTable<ZoomObject> members = {
        {"PageFit", [](ZoomObject& zoom, Arguments) { return Whole(zoom.document_.view().pageFit); },
         [](ZoomObject& zoom, const Value& value) {
             zoom.document_.view().pageFit = WholeWithin(value, kNoPageFit, 3);
             zoom.document_.model().zoomToPageWidth = zoom.document_.view().pageFit == PageFitBestFit;
         }},
        {"Percentage",
         [](ZoomObject& zoom, Arguments) { return Whole(zoom.document_.view().zoomPercentage); },
         [](ZoomObject& zoom, const Value& value) {
             zoom.document_.view().zoomPercentage = WholeWithin(value, 10, 500);
             zoom.document_.view().pageFit = kNoPageFit;
             zoom.document_.model().zoomPercent = zoom.document_.view().zoomPercentage;
             zoom.document_.model().zoomToPageWidth = false;
         }},
    };
    return members;
}

const MemberTable<ViewObject>& ViewObject::Members() {
    static const MemberTable<ViewObject> members = {
        {"Type", [](ViewObject& view, Arguments) { return Whole(view.document_.view().type); },
         [](ViewObject& view, const Value& value) { view.document_.view().type = WholeWithin(value, 1, 7); }},
        {"Zoom", [](ViewObject& view, Arguments) { return Value(view.document_.Share(view.zoom_)); }},
    };
    return members;
}

const MemberTable<WindowObject>& WindowObject::Members() {
    static const MemberTable<WindowObject> members = {
        {"View", [](WindowObject& window, Arguments) { return Value(window.document_.Share(window.view_)); }},
    };
    return members;
}

}  // namespace quillmark::word::docx::objects
