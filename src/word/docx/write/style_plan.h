#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "word/docx/model/document.h"

/// Named styles for documents whose paragraphs have roles. What the paragraphs of a role have in common
/// becomes their style, and is left out of their direct formatting; they look as they would without. A role
/// that comes in several kinds or sizes of letters gets a style for each.
namespace quillmark::word::docx::write {

/// How one paragraph is written.
struct StyleUse {
    static constexpr int kAsItIs = -1;  ///< with its own format, as documents without roles are

    enum class Keep : std::uint8_t { AsStyle, On, Off };

    int style = kAsItIs;
    Keep keepNext = Keep::AsStyle;
    bool keepLines = false;
    bool isGap = false;  ///< an empty line of a heading, which is none itself
    bool operator==(const StyleUse&) const = default;
};

/// What becomes one style: items of lists, whatever their role, have one of their own, and so has the empty
/// paragraph at a document's end, which is made so small that it never takes a page.
enum class StyleKind : std::uint8_t { Normal, RoleText, ListItem, DocumentEnd };

struct PlannedStyle {
    using Weights = std::map<FormatId, std::size_t>;

    StyleKind kind = StyleKind::Normal;
    Role role = Role::None;
    int closer = 0;           ///< its lines stand closer by so much than they were typed, see closer_lines.h
    Weights letters = {};     ///< of the text in it, by bytes
    Weights paragraphs = {};  ///< of the paragraphs in it, by their number
    /// Complete, but for the indents of list items, which are their lists'.
    CharFormat letterLook = {};
    ParaFormat look = {};
    std::string id = {};
    std::string name = {};
};

struct PagePart;

class StylePlan {
 public:
    explicit StylePlan(const Document& document);

    /// Whether any paragraph has a role; else everything is written as it is.
    bool isActive() const { return !paragraphs_.empty(); }

    /// How a paragraph is written. Those of the body are asked for in the order of the text; all others are
    /// written as they are.
    StyleUse UseOf(const Paragraph& paragraph);

    /// w:rPr of text in a paragraph that is written so.
    std::string RunProperties(const StyleUse& use, FormatId format) const;
    /// w:pPr of such a paragraph; `mark` and `section` as for ParagraphProperties in properties.h.
    std::string ParagraphProperties(const StyleUse& use, FormatId format, std::string_view mark,
                                    std::string_view section) const;

    /// The document's styles, with Normal in the letters that most of the text has, and those of the roles.
    std::vector<StyleDefinition> Styles() const;

 private:
    struct Planned {
        const Paragraph* paragraph = nullptr;
        StyleUse use;
    };

    void Plan(const Paragraph& paragraph);
    int StyleOf(const ParaFormat& format, FormatId letters);
    int StyleLike(const PlannedStyle& wanted);
    void PlanSections();
    void PlanPage(std::vector<PagePart>& parts, const SectionProperties& section);
    void Weigh();

    const Document& document_;
    CharFormat normalLetters_;  ///< as the document's own Normal has them
    ParaFormat normalLook_;
    std::vector<PlannedStyle> styles_;  ///< Normal first
    std::unordered_map<std::uint64_t, int> styleByFormats_;
    std::vector<Planned> paragraphs_;
    std::size_t next_ = 0;
};

}  // namespace quillmark::word::docx::write
