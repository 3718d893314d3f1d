#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "word/docx/model/document.h"
#include "word/seam/automation.h"

/// Searching and replacing text as the word processor's Find does with its default options.
namespace quillmark::word::docx::find {

/// What the code ^c puts in: nothing at all, a text ("\r" ends a paragraph, "\v" a line) or a picture.
using ClipboardContent = std::variant<std::monostate, std::string, Picture>;

/// Texts are plain, letter case does not count, and straight quotation marks find curly ones too.
///
/// Codes of the text looked for: ^p paragraph mark, ^t tab, ^l line break, ^m page break, ^b section break,
/// ^n column break, ^s no-break space, ^= and ^+ the dashes, ^^ a caret. Codes of the replacement: the same
/// without ^b, and ^& for the text found, ^c for the clipboard. Other carets stand for themselves.
struct FindRequest {
    std::string_view text;
    std::string_view replaceWith = {};
    FindReplace replace = ReplaceNone;
    FindWrap wrap = FindStop;
    const ClipboardContent* clipboard = nullptr;
};

struct TextRange {
    Place start;
    Place end;
};

struct FindResult {
    bool found = false;
    int replaced = 0;
    /// The place of the match, or of what replaced it; the last one of several. Unset when nothing was found.
    std::optional<TextRange> match;
};

/// Looks through `story` (a document's body or a header's or footer's blocks), tables at any depth included.
///
/// Without a range the whole story is searched. An empty range (start and end alike) is searched from there
/// to the story's end, and with FindContinue on from the story's beginning; any other range is searched
/// within its ends, and with FindContinue the rest of the story after it.
///
/// New text takes the look of the first character that it replaces. A replaced paragraph mark joins the
/// paragraph with the next one, whose format stays; a replaced section break gives its text the properties
/// of the section behind it. A section break replaced by a page break leaves the paragraphs apart, so that
/// each keeps its format. The last mark of a cell or of the story is never replaced.
///
/// Places into the story that the caller holds are invalid after a replacement. Throws AutomationError 5854
/// when a text has more than 255 characters, as the word processor does, and kBadValue for ^c without a
/// clipboard.
FindResult Find(Document& document, Blocks& story, const FindRequest& request,
                const std::optional<TextRange>& range = {});

/// Looks through all that the document shows: the main text as `Find` does, then headers, footers, text boxes
/// and notes. `match` is unset for what was found outside the main text. Marks of paragraphs and sections are
/// looked for in the main text alone; pictures are not put into text boxes and notes.
FindResult FindEverywhere(Document& document, const FindRequest& request);

inline constexpr int kTextTooLong = 5854;
inline constexpr std::size_t kLongestFindText = 255;

}  // namespace quillmark::word::docx::find
