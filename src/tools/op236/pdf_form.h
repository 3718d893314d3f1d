#pragma once

#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmark {

/// A field of a PDF form by its full name, its parts joined by dots, and what is put in: a text, the export
/// value of one of several buttons, or a tick in the field's first box.
struct FieldValue {
    std::string field;
    std::string text;
    bool tick = false;
};

/// A form that cannot be filled; what() is a sentence for the user.
class FormError : public std::runtime_error {
 public:
    enum class Kind {
        NotThere,   ///< no such file, or no right to read it
        Damaged,    ///< no PDF, or a torn one
        Encrypted,  ///< opens with a password only, or forbids filling
        NoFields,   ///< a form of another kind (XFA alone), or none at all
    };
    FormError(Kind why, const std::string& sentence) : std::runtime_error(sentence), kind(why) {}
    const Kind kind;
};

struct FilledForm {
    std::string bytes;  ///< the filled copy, a PDF
    std::vector<std::string>
        missing;  ///< fields, or values of buttons, that the form lacks; they are left out
};

/// Empties the form and fills a copy of it. Every filled field has an appearance of its own, so that every
/// viewer and printer shows the values; viewers that run scripts calculate what the form calculates when they
/// open the copy. Throws FormError.
FilledForm FillPdfForm(const std::filesystem::path& form, std::span<const FieldValue> values);

}  // namespace quillmark
