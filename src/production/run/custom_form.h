#pragma once

#include <string>
#include <string_view>

#include "core/custom_forms.h"
#include "production/kit/production.h"
#include "production/kit/word_session.h"

/// A firm's own form in the job: it is opened, its markers are replaced by the job's values, and all that it
/// holds is pasted where the insertion point stands.
namespace quillmark {

/// Longer values do not pass through the word processor's replacement and go by way of the clipboard.
inline constexpr std::size_t kLongestReplacement = 254;

/// The form's name in an entry of the job list: what stands between the square brackets.
std::string_view FormOfEntry(std::string_view entry);

/// What stands in the marker's place: the field's value or one derived from it, the user row's value, or the
/// marker itself where that is empty, so that the hole stays visible. Ends of paragraphs are "\r".
std::string ValueOfMarker(const FormMarker& marker, const Job& job);

/// Types the form of this entry. The user is told of section breaks in it, which become page breaks. Throws
/// word::AutomationError, also where there is no such form, FileError and RecordError for its list of
/// markers.
void TypeCustomForm(std::string_view entry, const Production& production, WordSession& session);

}  // namespace quillmark
