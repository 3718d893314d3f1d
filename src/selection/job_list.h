#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "selection/firm_context.h"
#include "selection/job_in_hand.h"

/// The job list `List2`: what a pick from the documents on offer adds, with the documents that the law or the
/// trade wants beside it, and what a line that goes leaves behind. The fields are the caller's to refresh.
namespace quillmark {

/// What a pick brought with it.
struct PickEffects {
    bool droveOut = false;             ///< lines that cannot stay beside the pick have gone
    bool asksPropertyType = false;     ///< it came to stand beside what asks for the property type with it
    std::vector<std::string> notices;  ///< of documents added beside it, for where document alerts are on
};

/// A line of `List1` is picked: a document goes on the job list with what must accompany it, or a package
/// takes the list's place. `anew`: the list as it stands is of no account. Throws FileError and PackageError
/// for a package that cannot be read, with nothing changed.
PickEffects PickLine(std::string_view line, bool anew, JobInHand& hand, const FirmContext& firm);

/// Takes this line alone off; documents that came with it stay.
void DropLine(std::size_t line, JobInHand& hand);

/// Makes exactly these lines legal size; a name that is listed twice counts once for each time given. False,
/// with nothing changed, if the list does not hold them all.
bool SelectLegalSize(const std::vector<std::string>& names, JobInHand& hand);

/// No line is selected any more; what was collected of them for legal size stays.
void UnselectLines(JobInHand& hand);

}  // namespace quillmark
