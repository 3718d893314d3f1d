#pragma once

#include <filesystem>
#include <memory>

#include "word/docx/model/document.h"
#include "word/seam/automation.h"
#include "word/seam/clipboard.h"
#include "word/seam/hints.h"

/// The embedded word processor: the object model of automation.h over documents in memory, opened from and
/// saved to .docx files. It has no window, no clock and no state outside its objects.
namespace quillmark::word::docx::objects {

struct EngineOptions {
    /// What relative file names of `SaveAs`, `Open` and `AddPicture` are against; empty for the current
    /// folder.
    std::filesystem::path folder;
    /// What `Selection.Paste` and the code ^c take; the engine makes one of its own when none is given.
    std::shared_ptr<MemoryClipboard> clipboard;
};

/// A running word processor without documents: its Application object. It runs until `Quit`, or until the
/// last reference to this object goes.
///
/// What the engine refuses raises AutomationError with Word's number: 438 for a member outside the model that
/// the system uses (the text names the object and the member), 13, 448, 449 and 450 for wrong arguments, 4608
/// for a value out of range, 4605 where a document is protected, 5941 for an element that a collection does
/// not have, 5991 and 5992 for a row or column of a table with merged cells, 5825 for an object whose
/// document was closed or whose text was deleted, 4248 when no document is open, and 462 for everything after
/// `Quit`.
ObjectPtr StartEngine(EngineOptions options = {});

/// The hints to a running engine; they live as long as its Application object does. Throws kTypeMismatch for
/// any other object.
std::shared_ptr<Hints> HintsOf(const ObjectPtr& application);

/// The model behind a Document object of the engine; valid as long as the object. Throws kTypeMismatch for
/// any other object.
const Document& ModelOf(const ObjectPtr& document);

/// The file that a Document object was opened from or last saved to; empty while it was neither.
std::filesystem::path PathOf(const ObjectPtr& document);

}  // namespace quillmark::word::docx::objects
