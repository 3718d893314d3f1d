#include "tools/custom_forms/marker_judge.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <utility>

namespace quillmark {

namespace {

constexpr std::size_t kLongestMarker = 40;

void ReplaceEach(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// Small letters, straight quotation marks: what the word processor's search takes for the same.
std::string Folded(std::string_view text) {
    std::string folded(text);
    for (const char* curly : {"\u2018", "\u2019"}) ReplaceEach(folded, curly, "'");
    std::ranges::transform(folded, folded.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return folded;
}

std::vector<std::string> WordsOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

/// With one blank between words and none around them, whatever kind of blank it was.
std::string Trim(std::string text) {
    ReplaceEach(text, "\u00a0", " ");
    std::string trimmed;
    for (const std::string& word : WordsOf(text)) trimmed += (trimmed.empty() ? "" : " ") + word;
    return trimmed;
}

std::string DigitsOf(std::string_view text) {
    std::string digits;
    for (const char c : text)
        if (c >= '0' && c <= '9') digits += c;
    return digits;
}

bool IsNumber(const std::string& word) {
    return std::ranges::all_of(word, [](char c) { return c < 'a' || c > 'z'; });
}

bool IsWordCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// How many letters must be put in, left out, changed or swapped with their neighbour.
std::size_t Distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> before(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    std::vector<std::size_t> next(b.size() + 1);
    std::iota(row.begin(), row.end(), 0u);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        next[0] = i;
        for (std::size_t k = 1; k <= b.size(); ++k) {
            next[k] = std::min({row[k] + 1, next[k - 1] + 1, row[k - 1] + (a[i - 1] == b[k - 1] ? 0 : 1)});
            const bool isSwap = i > 1 && k > 1 && a[i - 1] == b[k - 2] && a[i - 2] == b[k - 1];
            if (isSwap) next[k] = std::min(next[k], before[k - 2] + 1);
        }
        before = std::exchange(row, next);
    }
    return row.back();
}

std::size_t Tolerance(std::size_t length) {
    return length >= 9 ? 2 : length >= 6 ? 1 : 0;
}

char ClosingOf(char open) {
    return open == '{' ? '}' : open == '(' ? ')' : ']';
}

}  // namespace

MarkerJudge::MarkerJudge(const std::vector<MarkerRow>& rows) {
    for (const MarkerRow& row : rows) {
        const std::string& marker = row.marker.marker;
        if (marker.size() < 3) continue;
        const std::string body = Folded(std::string_view(marker).substr(1, marker.size() - 2));
        markers_.emplace(body, marker);
        for (const std::string& word : WordsOf(body))
            if (!IsNumber(word)) words_.insert(word);
    }
}

bool MarkerJudge::Knows(std::string_view marker) const {
    return marker.size() > 2 && markers_.contains(Folded(marker.substr(1, marker.size() - 2)));
}

std::string MarkerJudge::Nearest(const std::string& body) const {
    std::size_t best = Tolerance(body.size()) + 1;
    std::string nearest;
    for (const auto& [known, marker] : markers_) {
        const std::size_t difference =
            known.size() > body.size() ? known.size() - body.size() : body.size() - known.size();
        // Another number is another party.
        if (difference >= best || DigitsOf(known) != DigitsOf(body)) continue;
        const std::size_t distance = Distance(known, body);
        if (distance >= best) continue;
        best = distance;
        nearest = marker;
    }
    return nearest;
}

bool MarkerJudge::SpeaksAsMarkersDo(const std::string& body) const {
    std::size_t words = 0;
    std::size_t known = 0;
    for (const std::string& word : WordsOf(body)) {
        if (IsNumber(word)) continue;
        ++words;
        known += words_.contains(word);
    }
    return body.size() <= kLongestMarker && known > 0 && known * 3 >= words * 2 && WordsOf(body).size() > 1;
}

/// A text between brackets; `whole` holds them.
MarkerFault MarkerJudge::Within(std::size_t at, std::string_view whole, char open) const {
    const std::string body = Folded(whole.substr(1, whole.size() - 2));
    const bool isSquare = open == '[';
    if (isSquare && markers_.contains(body)) return {};
    MarkerFault fault{at, {}, {std::string(whole), {}, 0, 0}};
    const std::string trimmed = Trim(body);
    const auto known = markers_.find(trimmed);
    if (known != markers_.end() && (isSquare || trimmed.find(' ') != trimmed.npos))
        fault.mend.right = known->second;
    if (fault.mend.right.empty() && isSquare) fault.mend.right = Nearest(trimmed);
    if (!fault.mend.right.empty())
        fault.what = std::string(whole) + " is nearly the marker " + fault.mend.right;
    else if (isSquare && SpeaksAsMarkersDo(trimmed))
        fault.what = std::string(whole) + " looks like a marker, but no field has it";
    return fault;
}

/// A bracket that is not closed; `behind` is what follows it.
MarkerFault MarkerJudge::Unclosed(std::size_t at, std::string_view behind) const {
    const std::string text = Folded(behind);
    const std::string* longest = nullptr;
    std::string_view body;
    for (const auto& [known, marker] : markers_) {
        const bool ends = text.size() == known.size() ||
                          (text.size() > known.size() && !IsWordCharacter(text[known.size()]));
        if (!text.starts_with(known) || !ends || known.size() <= body.size()) continue;
        body = known;
        longest = &marker;
    }
    if (!longest) return {};
    const std::string wrong = "[" + std::string(behind.substr(0, body.size()));
    return {at, wrong + " has lost its closing bracket: " + *longest, {wrong, *longest, 0, ']'}};
}

/// A closing bracket that none opens.
MarkerFault MarkerJudge::Unopened(std::string_view text, std::size_t close) const {
    const std::string before = Folded(text.substr(0, close));
    const std::string* longest = nullptr;
    std::size_t length = 0;
    for (const auto& [known, marker] : markers_) {
        const bool begins =
            before.size() == known.size() ||
            (before.size() > known.size() && !IsWordCharacter(before[before.size() - known.size() - 1]));
        const bool isPhrase = known.find(' ') != known.npos;
        if (!before.ends_with(known) || !begins || !isPhrase || known.size() <= length) continue;
        length = known.size();
        longest = &marker;
    }
    // Folding changes the length of quotation marks alone, which no such text begins with.
    if (!longest || length > close) return {};
    const std::string wrong(text.substr(close - length, length + 1));
    return {close - length, wrong + " has lost its opening bracket: " + *longest, {wrong, *longest, '[', 0}};
}

std::vector<MarkerFault> MarkerJudge::Faults(std::string_view text) const {
    std::vector<MarkerFault> faults;
    const auto note = [&](MarkerFault fault) {
        if (!fault.what.empty()) faults.push_back(std::move(fault));
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == ']') note(Unopened(text, at));
        if (c != '[' && c != '{' && c != '(') continue;
        const std::size_t close = text.find(ClosingOf(c), at + 1);
        const bool isClosed = close != text.npos && text.find(c, at + 1) > close;
        if (isClosed) {
            note(Within(at, text.substr(at, close - at + 1), c));
            if (c == '[') at = close;
        } else if (c == '[') {
            note(Unclosed(at, text.substr(at + 1)));
        }
    }
    return faults;
}

}  // namespace quillmark
