#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tools/custom_forms/marker_judge.h"

/// What a form is likely to go wrong by, told before it does.
namespace quillmark {

struct FormFinding {
    std::string place;          ///< "paragraph 12", "the header", "table 1, row 2, column 3"
    std::string what;           ///< what is wrong there
    bool isMarkerFault = true;  ///< a job cannot fill it; false for what merely looks otherwise than meant
    Mend mend = {};             ///< `right` is empty where there is nothing to mend
};

/// Reads a form and tells of its markers, its section breaks and the fonts that are not among those installed
/// (of none when `fonts` is empty). `fonts` are in small letters. Throws word::AutomationError for a file
/// that is none, and OfficeError for one that cannot be read without LibreOffice.
std::vector<FormFinding> CheckForm(const std::filesystem::path& form, const MarkerJudge& judge,
                                   const std::set<std::string>& fonts = {});

}  // namespace quillmark
