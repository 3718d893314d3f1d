#pragma once

#include <cstdio>
#include <filesystem>
#include <istream>

namespace quillmark {

/// Where a renderer keeps its things.
struct RendererFolders {
    std::filesystem::path profile;  ///< LibreOffice's settings for this use, kept from one run to the next
    std::filesystem::path work;     ///< for the user alone; whoever starts the renderer clears it
};

/// Answers requests until the input ends. A request is the line "pdf PATH"; the answer is the line "ok N"
/// and the N bytes of the PDF, or the line "failed WHY". The first line, before any request, is "ready", or
/// "none WHY" where there is nothing to make pages with; the input is not read then.
void ServeRequests(const RendererFolders& folders, std::istream& in, std::FILE* out);

}  // namespace quillmark
