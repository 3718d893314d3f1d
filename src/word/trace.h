#pragma once

#include <functional>
#include <string_view>

#include "word/seam/automation.h"

namespace quillmark::word {

/// Wraps an application so that every operation on it, and on each object reached from it, is handed to
/// `line` once it is done, as one line of text without its line end:
///
///     Selection.Font.Bold = True
///     ActiveDocument.ListTemplates.Add OutlineNumbered:=True
///     Selection.Range.ListFormat.ApplyListTemplate ActiveDocument.ListTemplates(1)
///     Application.Options.CheckSpellingAsYouType -> False
///     ActiveDocument.Styles("List Paragraph") ! 5941 "There is no such style."
///
/// Reaching an object writes nothing: it becomes part of the path. A read that gives a plain value shows it
/// behind `->`; a call's result is not shown. An operation that was refused shows the error's number and
/// description behind `!`, and the error goes on to the caller.
///
/// How objects are named that have no fixed path:
/// - a document that a call gave: `ActiveDocument` while it is, else `Documents(n)`, the latest opened being
/// 1;
/// - what else a collection's `Add` gave: its place in the collection, `ActiveDocument.Tables(1)`;
/// - a range taken from the selection: `Selection.Range` while nothing else was done since, afterwards
///   `Range(k)`, numbered in the order in which ranges came to be kept this way. A range that a break goes in
///   at was always kept for it.
ObjectPtr Trace(ObjectPtr application, std::function<void(std::string_view line)> line);

/// The object behind a traced one; any other object is given back as it is.
ObjectPtr Untraced(const ObjectPtr& object);

}  // namespace quillmark::word
