#include "word/docx/objects/font.h"

#include "word/docx/objects/open_document.h"

namespace quillmark::word::docx::objects {
namespace {

// Each property: how it reads from a complete format, and how a value becomes a patch that sets it alone.

struct Name {
    static Value Read(const CharFormat& format) { return format.font; }
    static void Set(CharFormat& patch, const Value& value) {
        patch.font = StringOf(value);
        if (patch.font.empty()) throw AutomationError(error::kBadValue, "A font needs a name");
    }
};

struct Size {
    static Value Read(const CharFormat& format) { return *format.halfPoints / 2.0; }
    static void Set(CharFormat& patch, const Value& value) {
        patch.halfPoints = static_cast<int>(std::lround(TwipsOf(value, 1, 1638) / 10.0));
    }
};

template <std::optional<bool> CharFormat::*member>
struct Flag {
    static Value Read(const CharFormat& format) { return *(format.*member); }
    static void Set(CharFormat& patch, const Value& value) { patch.*member = FlagOf(value); }
};

struct Underlining {
    static Value Read(const CharFormat& format) { return Whole(*format.underline); }
    static void Set(CharFormat& patch, const Value& value) {
        patch.underline = WholeOf(value);
        if (patch.underline != UnderlineNone && patch.underline != UnderlineSingle &&
            patch.underline != UnderlineDouble)
            throw AutomationError(error::kBadValue, "No such underline");
    }
};

}  // namespace

template <class T>
Member<FontObject> FontObject::Property(std::string_view name) {
    return {name,
            [](FontObject& font, Arguments) {
                Value common;
                font.target_.ForEachFont([&](const CharFormat& format) {
                    const Value value = T::Read(format);
                    const bool isFirst = std::holds_alternative<std::monostate>(common);
                    if (!isFirst && common != value)
                        common = std::holds_alternative<std::string>(value) ? Value(std::string())
                                                                            : Whole(kUndefined);
                    else
                        common = value;
                });
                return common;
            },
            [](FontObject& font, const Value& value) {
                CharFormat patch;
                T::Set(patch, value);
                font.target_.ChangeFont(patch);
            }};
}

const MemberTable<FontObject>& FontObject::Members() {
    static const MemberTable<FontObject> members = {
        Property<Name>("Name"),
        Property<Size>("Size"),
        Property<Flag<&CharFormat::bold>>("Bold"),
        Property<Flag<&CharFormat::italic>>("Italic"),
        Property<Underlining>("Underline"),
        Property<Flag<&CharFormat::superscript>>("Superscript"),
    };
    return members;
}

void FontObject::CheckAlive() const {
    target_.document().CheckAlive();
}

}  // namespace quillmark::word::docx::objects
