#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "core/job.h"

namespace quillmark {

/// Prepares a job's values for typing: today's date, blanks to be completed by hand, empty texts for what may
/// stay blank in a finished document. The changes are made in the values alone; what the fields themselves
/// hold, and so what the user sees, stays.
class NormalisedValues {
 public:
    NormalisedValues(Job& job, std::chrono::year_month_day today);

    /// Puts back those values that are to be as before in the job file: a borrowed law firm, the blank
    /// closing time, payoff amounts with their tags, the attorney's juris number. The others stay.
    void Undo();

 private:
    void Put(int n, const std::string& text);
    void PutForNow(int n, const std::string& text, std::string afterwards);

    void DateDocuments(std::chrono::year_month_day today);
    void NamePrincipal();
    void FillLawFirmAndTime();
    void StripTags();
    void LeaveBlank();

    Job& job_;
    std::vector<std::pair<int, std::string>> afterwards_;
};

}  // namespace quillmark
