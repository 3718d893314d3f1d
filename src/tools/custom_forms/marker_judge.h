#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/custom_forms/form_package.h"
#include "tools/custom_forms/marker_list.h"

/// Telling markers that were meant from markers that are.
namespace quillmark {

/// A marker that no job fills, and what it was meant to be.
struct MarkerFault {
    std::size_t at = 0;  ///< where it begins in the text, in bytes
    std::string what;    ///< what is wrong, with the text in question
    Mend mend;           ///< `right` is empty where nothing can be proposed
};

class MarkerJudge {
 public:
    explicit MarkerJudge(const std::vector<MarkerRow>& rows);

    /// Whether the text, brackets included, is a marker of the list.
    bool Knows(std::string_view marker) const;
    /// Every fault in a paragraph's text, in its order: markers that are nearly right, that have lost a
    /// bracket or stand in others, and texts in brackets that speak of parties and papers as markers do but
    /// are none. Other texts in brackets, "[sic]" and "[1]" among them, are the form's own.
    std::vector<MarkerFault> Faults(std::string_view text) const;

 private:
    MarkerFault Within(std::size_t at, std::string_view whole, char open) const;
    MarkerFault Unclosed(std::size_t at, std::string_view behind) const;
    MarkerFault Unopened(std::string_view text, std::size_t close) const;
    std::string Nearest(const std::string& body) const;
    bool SpeaksAsMarkersDo(const std::string& body) const;

    std::map<std::string, std::string> markers_;  ///< by their text without brackets, put in one form
    std::set<std::string> words_;
};

}  // namespace quillmark
