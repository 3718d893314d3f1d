#pragma once

#include <string>
#include <string_view>

#include "core/fields.h"
#include "core/job.h"
#include "core/text_conversions.h"

/// What a key does in the one-line editor: which characters a field takes, and what some of them call up.
namespace quillmark {

inline constexpr std::string_view kBackspace = "\b";
/// What a fixed list's editor shows after a key. It is never a value.
inline constexpr std::string_view kPickFromList = "please select from list ...";
/// The box that `KeyEffect::MoveToSalePrice` comes with.
inline constexpr std::string_view kNoSalePrice = "No sale price given";

/// What else a key brings about.
enum class KeyEffect {
    None,
    OpenChoices,      ///< the choice list opens: the field can only be picked
    MoveToSalePrice,  ///< the editor closes with its text kept, the grid moves to field 76 if it lists it
};

struct FilteredKey {
    EditorText editor;      ///< as it stands before the character goes in
    std::string character;  ///< to go in at the caret; empty if the key was dropped or has done its work
    KeyEffect effect = KeyEffect::None;
};

/// Whether the field can only be picked from its list.
bool IsPickedOnly(int n);
/// A text that gives way to the first key: "[...", "(None)", "(enter check #)".
bool IsPlaceholder(std::string_view text);

/// The editor that a key is typed in.
struct KeyPlace {
    int n;  ///< field number, 0 for a user-defined row
    const Job& job;
    bool templateBeingSet = false;
};

/// Decides on one character (UTF-8) or `kBackspace` by the rule of the field: amounts take digits, "$", ","
/// and "."; described amounts take words behind a hyphen; in a commission "%" works the amount out from the
/// sale price; P in some adjustments gives "POC"; fixed lists take nothing. In every field a double quote is
/// dropped, so is ";" while a template is being set, and a placeholder gives way to the first key.
FilteredKey FilterEditKey(const EditorText& editor, std::string_view character, const KeyPlace& place);

/// The same, and the character that passed goes in, in proper case if that is on.
struct TypedKey {
    EditorText editor;
    KeyEffect effect = KeyEffect::None;
};
TypedKey TypeKey(const EditorText& editor, std::string_view character, const KeyPlace& place,
                 std::string_view marker, bool properCase);

/// Puts a character in for what is selected; `kBackspace` takes the selection or the character before the
/// caret away.
EditorText WithCharacter(EditorText editor, std::string_view character);

}  // namespace quillmark
