#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

#include "selection/document_catalogue.h"
#include "selection/job_in_hand.h"

/// The lines of the job list, as its rules handle them.
namespace quillmark {

/// Where the first line of that name stands.
std::optional<std::size_t> FindLine(std::string_view name, const JobInHand& hand);
bool HoldsLine(std::string_view name, const JobInHand& hand);
bool HoldsContract(const JobInHand& hand);

void AppendLine(std::string_view name, JobInHand& hand);

/// Takes every line whose name the test accepts off the list.
void TakeOff(const std::function<bool(std::string_view)>& test, JobInHand& hand);
void TakeOff(DocumentTrait any, JobInHand& hand);

/// Collects the names of the selected lines, the documents on legal-size paper.
void CollectLegalSize(JobInHand& hand);

/// Whether a closing statement and a contract that asks for the property type come together, on the list or
/// with the name about to be added.
bool AsksPropertyType(const JobInHand& hand, std::string_view added = {});
bool HoldsClosingStatement(const JobInHand& hand);

/// What the pick of a document took off a list before the document itself goes on.
struct Excluded {
    bool any = false;
    std::size_t position = 0;  ///< where the document goes instead; 0 for the end of the list
};

/// Whether a line cannot stay beside a document that is picked: a job has one deed, and payoffs go either
/// directly or by way of the secondary market service.
bool IsExcludedBy(std::string_view line, std::string_view picked);

/// Takes off the lines that cannot stay beside the picked document. A deed goes to the end of the list, a
/// payoff form takes the place of the last line that it drives out (unless that was the first line).
/// `nameOf` gives a line's name.
template <typename Lines, typename NameOf>
Excluded RemoveExcluded(Lines& lines, std::string_view picked, NameOf nameOf) {
    Excluded excluded;
    const bool takesPlace = !picked.starts_with(kDeedPrefix);
    for (std::size_t i = 0; i < lines.size();) {
        if (!IsExcludedBy(nameOf(lines[i]), picked)) {
            ++i;
            continue;
        }
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
        excluded.any = true;
        if (takesPlace) excluded.position = i;
    }
    return excluded;
}

}  // namespace quillmark
