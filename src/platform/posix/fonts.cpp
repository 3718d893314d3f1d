#ifndef _WIN32

#include "platform/fonts.h"

#include <stdio.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace quillmark {

namespace {

std::string OutputOf(const char* command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command, "r"), pclose);
    std::string output;
    if (!pipe) return output;
    std::array<char, 4096> piece;
    for (std::size_t read; (read = fread(piece.data(), 1, piece.size(), pipe.get())) > 0;)
        output.append(piece.data(), read);
    return output;
}

}  // namespace

/// The system's own list: families by lines, the names of one family divided by commas.
std::set<std::string> InstalledFonts() {
    const std::string listed = OutputOf("fc-list --format '%{family}\\n' 2>/dev/null");
    std::set<std::string> fonts;
    for (std::size_t at = 0; at < listed.size();) {
        const std::size_t end = std::min(listed.find_first_of(",\n", at), listed.size());
        std::string name = listed.substr(at, end - at);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
        if (!name.empty()) fonts.insert(std::move(name));
        at = end + 1;
    }
    return fonts;
}

}  // namespace quillmark

#endif
