#include "desktop/preview/page_map.h"

#include <algorithm>

namespace quillmark::desktop {

namespace {

bool IsBlank(char32_t c) {
    return c <= U' ' || c == 0xA0 || c == 0xAD;
}

/// The letters of a text, and where each stood.
struct Letters {
    std::u32string letters;
    std::vector<std::size_t> places;

    void Add(std::u32string_view text, std::size_t at) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (IsBlank(text[i])) continue;
            letters += text[i];
            places.push_back(at + i);
        }
    }
};

/// A paragraph that a page's end cuts is found in two pieces, with the footer between them.
constexpr std::size_t kShortestPiece = 4;

/// How far ahead words are looked for: a footer and a list's number always, the whole rest only for words
/// that do not stand elsewhere by chance.
std::size_t Reach(std::size_t length) {
    constexpr std::size_t kTelling = 40;
    return length < kTelling ? 400 : static_cast<std::size_t>(-1);
}

std::size_t Find(std::u32string_view all, std::u32string_view words, std::size_t from) {
    const std::size_t reach = Reach(words.size());
    const bool isRest = reach > all.size() - from;
    return (isRest ? all : all.substr(0, from + reach)).find(words, from);
}

}  // namespace

PageMap::PageMap(std::u32string_view text, const std::vector<std::u32string>& pages)
    : letterOf_(text.size(), kNowhere) {
    std::u32string all;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        for (std::size_t index = 0; index < pages[page].size(); ++index) {
            if (IsBlank(pages[page][index])) continue;
            all += pages[page][index];
            letters_.push_back({static_cast<int>(page), static_cast<int>(index)});
        }
    }
    std::size_t cursor = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(U'\r', begin), text.size());
        Letters paragraph;
        paragraph.Add(text.substr(begin, end - begin), begin);
        begin = end + 1;
        std::u32string_view rest = paragraph.letters;
        for (std::size_t done = 0; !rest.empty();) {
            std::size_t length = rest.size();
            std::size_t found = Find(all, rest, cursor);
            while (found == all.npos && length > kShortestPiece) {
                length = std::max(kShortestPiece, length - std::max<std::size_t>(1, length / 16));
                found = Find(all, rest.substr(0, length), cursor);
            }
            if (found == all.npos) {  // what no page shows: a form field's inside, say
                rest.remove_prefix(1);
                ++done;
                continue;
            }
            while (length < rest.size() && found + length < all.size() && all[found + length] == rest[length])
                ++length;
            for (std::size_t i = 0; i < length; ++i) letterOf_[paragraph.places[done + i]] = found + i;
            cursor = found + length;
            rest.remove_prefix(length);
            done += length;
        }
    }
}

std::vector<PageSpan> PageMap::SpansOf(std::size_t at, std::size_t length) const {
    std::vector<PageSpan> spans;
    for (std::size_t i = at; i < std::min(at + length, letterOf_.size()); ++i) {
        if (letterOf_[i] == kNowhere) continue;
        const Letter& letter = letters_[letterOf_[i]];
        // A blank lies between words, two characters at a line's end.
        const bool follows = !spans.empty() && spans.back().page == letter.page &&
                             letter.index >= spans.back().index &&
                             letter.index <= spans.back().index + spans.back().length + 1;
        if (follows)
            spans.back().length = letter.index + 1 - spans.back().index;
        else
            spans.push_back({letter.page, letter.index, 1});
    }
    return spans;
}

std::optional<std::size_t> PageMap::PlaceOf(int page, int index) const {
    const auto letter =
        std::ranges::find_if(letters_, [&](const Letter& l) { return l.page == page && l.index == index; });
    if (letter == letters_.end()) return {};
    const auto place = std::ranges::find(letterOf_, static_cast<std::size_t>(letter - letters_.begin()));
    if (place == letterOf_.end()) return {};
    return static_cast<std::size_t>(place - letterOf_.begin());
}

}  // namespace quillmark::desktop
