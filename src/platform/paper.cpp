#include "platform/paper.h"

namespace quillmark {

namespace {

/// Where the text's character number `count` begins, or its end.
std::size_t BytesOf(std::string_view utf8, std::size_t count) {
    std::size_t at = 0;
    for (; at < utf8.size(); ++at) {
        const bool begins = (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80;
        if (begins && count-- == 0) break;
    }
    return at;
}

std::size_t CharactersIn(std::string_view utf8) {
    std::size_t count = 0;
    for (const char c : utf8) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return count;
}

}  // namespace

std::vector<std::string> CutIntoColumns(std::string_view utf8, std::size_t firstColumns,
                                        std::size_t columns) {
    std::vector<std::string> pieces;
    do {
        const std::size_t end = BytesOf(utf8, pieces.empty() ? firstColumns : columns);
        pieces.emplace_back(utf8.substr(0, end));
        utf8.remove_prefix(end);
    } while (!utf8.empty());
    return pieces;
}

std::string FillColumns(std::string_view utf8, std::size_t columns) {
    std::string filled(utf8.substr(0, BytesOf(utf8, columns)));
    filled.append(columns - CharactersIn(filled), ' ');
    return filled;
}

std::vector<std::vector<std::string>> PagesOf(const std::vector<std::string>& lines, std::size_t columns,
                                              std::size_t rows) {
    std::vector<std::vector<std::string>> pages(1);
    for (const std::string& line : lines) {
        for (std::string& piece : CutIntoColumns(line, columns, columns)) {
            if (pages.back().size() == rows) pages.emplace_back();
            pages.back().push_back(std::move(piece));
        }
    }
    return pages;
}

}  // namespace quillmark
