#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "production/kit/text_passages.h"
#include "production/kit/text_steps.h"

namespace quillmark {

/// A document's text as it stands in the source tree and is embedded by the build.
struct TextSource {
    std::string_view file;  ///< below `production/builders`, such as "contracts/greenwich.txt"
    std::string_view text;  ///< UTF-8, lines ended by LF
};

/// All embedded texts in the order of their names.
std::span<const TextSource> TextSources();

/// A document that is a text, read and ready to be typed into any number of jobs; docs/text-documents.md
/// describes the format.
class TextDocument {
 public:
    /// Reads a text. Its `passages` are those of its family beside the common ones; the named texts that it
    /// uses stand in `family`, the texts of the same folder. What is wrong is in `Errors` afterwards, and
    /// such a document is not to be typed.
    TextDocument(const TextSource& source, Passages passages, std::span<const TextSource> family = {});

    /// "contracts/greenwich.txt:12: ..." for each fault, in the order of the text.
    const std::vector<std::string>& Errors() const { return errors_; }
    /// Names of the named texts that this one uses.
    const std::vector<std::string>& NamedTexts() const { return namedTexts_; }

    /// Types it at the insertion point. Throws word::AutomationError.
    void Type(const JobValues& job, Typist& type) const;

 private:
    std::vector<text::Step> steps_;
    std::vector<std::string> errors_;
    std::vector<std::string> namedTexts_;
};

}  // namespace quillmark
