#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// What the embedded engine can be told beside the operations of the model, so that its files are as well
/// made as they look: the meaning of paragraphs, the properties of the document. Word needs none of it and
/// has no such object; the trace does not show it. Text, looks and results of operations are the same with
/// hints and without, but for a picture that fills its page: it leaves room for a heading above it.
namespace quillmark::word {

/// What a paragraph is in its document. Each becomes a named style of the written file. Items of lists need
/// no role of their own.
enum class Role : std::uint8_t {
    None,
    Body,              ///< the running text of an instrument
    Title,             ///< the document's name over its text: a heading of the first level
    Heading,           ///< over a part of it: a heading of the second level
    Recital,           ///< what is set apart before the operative words: parties, premises, figures
    ReturnAddress,     ///< to whom a recorded document goes back
    Signature,         ///< execution clause, lines to sign on, witnesses: stays on one page
    Notary,            ///< venue, acknowledgment or oath, the officer's line: stays on one page
    Letter,            ///< the text of a letter
    StatementHeading,  ///< over a part of a statement of figures
    StatementLine,     ///< a label with its figure, or what stands below one
    StatementTotal,    ///< stays with the lines above it
};
inline constexpr int kRoles = 12;

/// Whether the role is that of words over others, which never stand alone at the end of a page.
constexpr bool IsHeading(Role role) {
    return role == Role::Title || role == Role::Heading || role == Role::StatementHeading;
}

/// What a file says of itself to those who look for it.
struct DocumentProperties {
    std::string title;
    std::string author;
    std::chrono::sys_seconds created = {};
};

/// Hints about the active document. Each does nothing while none is open.
class Hints {
 public:
    virtual ~Hints() = default;

    /// The paragraph at the insertion point, and those that typing makes of it or behind it, are this from
    /// here on.
    virtual void SetRole(Role role) = 0;
    virtual void SetProperties(const DocumentProperties& properties) = 0;
    /// How the file is shown when it is opened: as wide as the window, or in its natural size.
    virtual void SetBestFit(bool on) = 0;
};

}  // namespace quillmark::word
