#include "production/document_goldens.h"

#include <algorithm>
#include <vector>

#include "production/engine_desk.h"
#include "support/scratch.h"

namespace quillmark::test {

namespace {

/// Words with the blanks behind them; each paragraph end is a word of its own.
std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char c : text) {
        std::string& last = words.back();
        if (c == '\n' || last.ends_with('\n') || (last.ends_with(' ') && c != ' ')) words.emplace_back();
        words.back() += c;
    }
    return words;
}

struct Edit {
    char kind;  ///< '=' kept, '-' struck, '+' written in
    std::string word;
};

std::vector<Edit> Compare(const std::vector<std::string>& a, const std::vector<std::string>& b) {
    std::vector<std::vector<int>> common(a.size() + 1, std::vector<int>(b.size() + 1));
    for (std::size_t i = a.size(); i-- > 0;) {
        for (std::size_t j = b.size(); j-- > 0;) {
            common[i][j] =
                a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
        }
    }
    std::vector<Edit> edits;
    for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
        if (i < a.size() && j < b.size() && a[i] == b[j]) {
            edits.push_back({'=', a[i++]});
            ++j;
        } else if (i < a.size() && (j == b.size() || common[i + 1][j] >= common[i][j + 1])) {
            edits.push_back({'-', a[i++]});
        } else {
            edits.push_back({'+', b[j++]});
        }
    }
    return edits;
}

}  // namespace

std::string Reading(const std::string& document, const Job& job) {
    EngineDesk desk;
    desk.Type(document, job);
    return desk.Reading();
}

std::string Redline(const std::string& before, const std::string& after) {
    constexpr std::size_t kAround = 5;
    const std::vector<Edit> edits = Compare(Words(before), Words(after));
    const auto isNearChange = [&](std::size_t i) {
        const std::size_t end = std::min(edits.size(), i + kAround + 1);
        for (std::size_t k = i < kAround ? 0 : i - kAround; k < end; ++k) {
            if (edits[k].kind != '=') return true;
        }
        return false;
    };
    std::string redline;
    char kind = '=';
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (!isNearChange(i)) {
            if (!redline.empty() && !redline.ends_with('\n')) redline += "...\n";
            continue;
        }
        if (edits[i].kind != kind && kind != '=') redline += std::string(1, kind) + "]";
        if (edits[i].kind != kind && edits[i].kind != '=') redline += "[" + std::string(1, edits[i].kind);
        if (redline.empty() || redline.ends_with('\n')) redline += "... ";
        kind = edits[i].kind;
        redline += edits[i].word == "\n" ? "¶" : edits[i].word;
    }
    if (kind != '=') redline += std::string(1, kind) + "]";
    return redline.ends_with('\n') ? redline : redline + "\n";
}

void ExpectWhole(const std::string& golden, const std::string& document, const std::string& facts,
                 const Job& job) {
    ExpectGolden(golden + ".txt", document + "\n" + facts + "\n\n" + Reading(document, job));
}

void ExpectBranch(const std::string& golden, const std::string& document, const std::string& facts,
                  const Job& plain, const std::function<void(Job&)>& change) {
    Job job = plain;
    change(job);
    ExpectGolden(golden + ".txt", document + "\n" + facts + "; redlined\n\n" +
                                      Redline(Reading(document, plain), Reading(document, job)));
}

}  // namespace quillmark::test
