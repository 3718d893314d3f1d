#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The documents that the system offers, in catalogue order.
std::span<const std::string_view> DocumentCatalogue();

/// Documents that are no longer offered but still known: they reach a job through an older job file or a
/// package.
std::span<const std::string_view> OlderDocuments();

/// The placeholder of a document that the user fills by hand.
inline constexpr std::string_view kNewDocument = "[ NEW DOCUMENT ]";

/// Whether the job list entry is a custom document of the firm: "[ name ]", but not the placeholder.
bool IsCustomDocument(std::string_view name);

/// The names in a job's document history, each followed by ":". A known name that holds a colon itself is one
/// name.
std::vector<std::string> DocumentsOf(std::string_view jobDocuments);

}  // namespace quillmark
