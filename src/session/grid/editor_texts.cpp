#include "session/grid/editor_texts.h"

#include <algorithm>

namespace quillmark {

namespace {

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

bool IsBlockField(int n) {
    return n == 201 || n == 202;
}

std::string WithLineEnds(std::string_view text, std::string_view lineEnd) {
    std::string lines;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r' && text[at] != '\n') {
            lines += text[at];
            continue;
        }
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
        lines += lineEnd;
    }
    return lines;
}

std::string PastedLine(std::string_view text) {
    while (text.ends_with('\r') || text.ends_with('\n')) text.remove_suffix(1);
    return WithLineEnds(text, ", ");
}

std::string WhatWasPutIn(std::string_view before, std::string_view after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t front = 0;
    while (front < shorter && before[front] == after[front]) ++front;
    std::size_t back = 0;
    while (back < shorter - front && before[before.size() - 1 - back] == after[after.size() - 1 - back])
        ++back;
    // Two characters may share their first or their last byte.
    while (front > 0 && front < after.size() && ContinuesCharacter(after[front])) --front;
    while (back > 0 && ContinuesCharacter(after[after.size() - back])) --back;
    return std::string(after.substr(front, after.size() - front - back));
}

}  // namespace quillmark
