#include "word/docx/write/review_ids.h"

#include <algorithm>
#include <string_view>

namespace quillmark::word::docx::write {

namespace {

// clang-format off
constexpr std::string_view kReviews[] = {
    "<w:ins ", "<w:del ", "<w:rPrChange ", "<w:pPrChange ", "<w:cellIns ", "<w:cellDel ",
};
// clang-format on

bool BeginsReview(std::string_view xml) {
    return std::ranges::any_of(kReviews, [&](std::string_view tag) { return xml.starts_with(tag); });
}

}  // namespace

void NumberReviews(std::string& part, int& next) {
    constexpr std::string_view kId = " w:id=\"", kElement = "<w:", kFirstLetters = "idrpc";
    const std::string_view old = part;
    std::string numbered;
    std::size_t done = 0;
    for (std::size_t tag = old.find(kElement); tag != old.npos; tag = old.find(kElement, tag + 1)) {
        // Most elements are none of them, and parts are long.
        if (kFirstLetters.find(old[std::min(tag + kElement.size(), old.size() - 1)]) == old.npos) continue;
        if (!BeginsReview(old.substr(tag))) continue;
        const std::size_t id = old.find(kId, tag);
        if (id >= old.find('>', tag)) continue;
        const std::size_t value = id + kId.size();
        numbered.append(old, done, value - done);
        numbered += std::to_string(next++);
        done = old.find('"', value);
    }
    if (done == 0) return;
    numbered.append(old, done);
    part = std::move(numbered);
}

}  // namespace quillmark::word::docx::write
