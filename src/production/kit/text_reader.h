#pragma once

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "production/kit/text_document.h"
#include "production/kit/text_steps.h"

namespace quillmark {

/// A named text: the lines between `@passage NAME` and its `@end`.
struct NamedText {
    std::string_view name;
    std::string_view file;
    int firstLine = 0;  ///< of its text, from 1
    std::string_view text;
};
/// The named texts of these sources, in their order.
std::vector<NamedText> FindNamedTexts(std::span<const TextSource> sources);

/// Reads the text of one document into steps.
class TextReader {
 public:
    TextReader(Passages passages, std::span<const TextSource> family, std::vector<text::Step>& steps,
               std::vector<std::string>& errors, std::vector<std::string>& namedTexts);

    /// Reads a whole document; named texts in it are passed over.
    void Read(const TextSource& source);

 private:
    /// A condition that is open, and whether it was begun within a block.
    struct OpenCondition {
        bool isInBlock = false;
        bool hasElse = false;
        int line = 0;
    };

    void ReadLines(std::string_view file, int firstLine, std::string_view text);
    void ReadLine(std::string_view line, std::string_view next);
    void Fail(const std::string& what);

    // Lines that begin with @.
    void ReadDirective(std::string_view line, std::string_view next);
    void BeginCondition(std::string_view condition, std::string_view next);
    void EndCondition();
    void ElseCondition();
    std::optional<text::If> ReadCondition(std::string_view condition);
    void ReadFont(std::string_view rest);
    void ReadAlignment(std::string_view rest);
    void ReadTabs(std::string_view rest);
    std::optional<double> ReadNumber(std::string_view text);

    // Blocks.
    void OpenBlock(int level);
    void CloseBlock();
    void MarkOutlines();
    /// A block that is one passage and nothing else.
    bool ReadLonePassage(std::string_view line, std::string_view next);

    // Within a line.
    void ReadWords(std::string_view line);
    std::size_t ReadMark(std::string_view line, std::size_t at);
    std::size_t ReadField(std::string_view line, std::size_t at);
    std::size_t ReadBraces(std::string_view line, std::size_t at);
    void ReadForm(std::string_view form, std::string_view marker);
    void FlushWords();
    const Passage* FindPassage(std::string_view name) const;
    const NamedText* FindNamedText(std::string_view name) const;

    Passages passages_;
    std::vector<NamedText> named_;
    std::vector<text::Step>& steps_;
    std::vector<std::string>& errors_;
    std::vector<std::string>& namedTexts_;

    std::string_view file_;
    int line_ = 0;
    int depth_ = 0;  ///< of named texts within one another
    std::optional<OpenCondition> condition_;
    std::optional<std::size_t> block_;  ///< the step that begins the block in hand
    bool joins_ = false;                ///< the next line of the block is joined with a blank
    std::string words_;
    bool bold_ = false, italic_ = false;
    word::Underline underline_ = word::UnderlineNone;
};

}  // namespace quillmark
