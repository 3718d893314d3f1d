#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

/// The late-bound face of a word processor: objects whose members are reached by name, as Word's own
/// automation interface offers them. The embedded engine, Word itself (Windows) and the trace implement it.
namespace quillmark::word {

class Object;
using ObjectPtr = std::shared_ptr<Object>;

/// What passes through the seam. Distances are in points, texts in UTF-8, enumerations their whole numbers.
/// A text's paragraph ends are "\r", its manual line breaks "\v", as the word processor holds them.
using Value = std::variant<std::monostate, bool, std::int32_t, double, std::string, ObjectPtr>;

/// One argument of a call; a name makes it a named argument (`OutlineNumbered:=True`).
struct Argument {
    Value value;
    std::string_view name = {};
};
using Arguments = std::span<const Argument>;

/// An object of the model. Each of the three throws AutomationError for a member that the object does not
/// have, for a value out of its range, and for whatever the word processor refuses.
class Object {
 public:
    virtual ~Object() = default;

    /// Reads a property. A collection's element is `Item` with its index or name as the argument.
    virtual Value Get(std::string_view member, Arguments arguments) = 0;
    /// Sets a property.
    virtual void Put(std::string_view member, const Value& value) = 0;
    /// Calls a method; an empty value when it gives none.
    virtual Value Call(std::string_view member, Arguments arguments) = 0;

    Value Get(std::string_view member) { return Get(member, {}); }
    Value Call(std::string_view member) { return Call(member, {}); }
};

/// A refusal of the word processor. The numbers are those that Word and its automation raise.
class AutomationError : public std::runtime_error {
 public:
    AutomationError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    int number() const { return number_; }

 private:
    int number_;
};

namespace error {
inline constexpr int kPermissionDenied = 70;  ///< the file is open elsewhere
inline constexpr int kPathNotFound = 76;
inline constexpr int kObjectNotSet = 91;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kCannotCreate = 429;    ///< no word processor can be started
inline constexpr int kNoSuchMember = 438;    ///< the object has no such property or method
inline constexpr int kNoSuchArgument = 448;  ///< the method has no parameter of this name
inline constexpr int kArgumentNotOptional = 449;
inline constexpr int kWrongArgumentCount = 450;
inline constexpr int kServerGone = 462;  ///< the word processor was closed by the user
inline constexpr int kDiskFull = 61;
inline constexpr int kBadValue = 4608;      ///< value out of range
inline constexpr int kNotAvailable = 4605;  ///< the command is not available (a protected document, say)
inline constexpr int kNoDocumentOpen = 4248;
inline constexpr int kNoSuchPicture = 5152;  ///< the picture's file is not there
inline constexpr int kFileNotFound = 5174;
inline constexpr int kFileDamaged = 5792;      ///< the file is no document, or a torn one
inline constexpr int kObjectDeleted = 5825;    ///< the object's document was closed, or its text deleted
inline constexpr int kNoSuchElement = 5941;    ///< the collection has no such element
inline constexpr int kMergedRows = 5991;       ///< a row of a table with vertically merged cells
inline constexpr int kMixedCellWidths = 5992;  ///< a column of a table with horizontally merged cells
}  // namespace error

/// The whole numbers of the model's enumerations, where the system speaks of them.
enum Underline : int { UnderlineNone = 0, UnderlineSingle = 1, UnderlineDouble = 3 };
enum Alignment : int { AlignLeft = 0, AlignCentre = 1, AlignRight = 2, AlignJustified = 3 };
enum Break : int { SectionBreakNextPage = 2, SectionBreakContinuous = 3, PageBreak = 7 };
enum NumberStyle : int { NumberArabic = 0, NumberLowercaseRoman = 2, NumberLowercaseLetter = 4 };
enum PaperSize : int { PaperLetter = 2, PaperLegal = 4 };
enum SectionStart : int { SectionContinuous = 0, SectionNewPage = 2 };
enum StoryType : int {
    MainTextStory = 1,
    EvenPagesFooterStory = 8,
    PrimaryFooterStory = 9,
    FirstPageFooterStory = 11
};
enum FieldType : int { FieldPage = 33, FieldFormTextInput = 70, FieldFormCheckBox = 71 };
enum Unit : int { UnitStory = 6 };
enum GoToItem : int { GoToLine = 3 };
enum GoToDirection : int { GoToFirst = 1 };
enum ProtectionType : int { NoProtection = -1, AllowOnlyFormFields = 2 };
enum CellVerticalAlignment : int { CellAlignTop = 0, CellAlignCentre = 1, CellAlignBottom = 3 };
enum LineStyle : int { LineStyleNone = 0, LineStyleSingle = 1, LineStyleDouble = 7 };
enum FindWrap : int { FindStop = 0, FindContinue = 1 };
enum FindReplace : int { ReplaceNone = 0, ReplaceOne = 1, ReplaceAll = 2 };
enum PasteFormat : int { FormatOriginalFormatting = 16 };
enum WindowState : int { WindowMaximised = 1 };
enum ViewType : int { PrintView = 3 };
enum PageFit : int { PageFitBestFit = 2 };

}  // namespace quillmark::word
