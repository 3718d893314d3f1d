#pragma once

#include <string>
#include <vector>

#include "production/run/preview.h"
#include "selection/firm_context.h"
#include "selection/job_in_hand.h"

namespace quillmark {

/// Something that is still open.
struct Blank {
    int n = 0;  ///< the field; 0 for a user-defined row and for a marker that no field has
    std::string marker;
    bool required = true;
    std::vector<std::string> documents;  ///< of the job list, in its order
    bool hasRow = true;                  ///< the grid asks for it

    bool operator==(const Blank&) const = default;
};

/// What is open in the job in hand, in grid order: relevant fields without a value, but for those that CREATE
/// fills itself, and user-defined rows. Markers that no row asks for come last: `typed` is what CREATE would
/// type now, document by document (OpenMarkersOfEach).
std::vector<Blank> BlanksOf(const JobInHand& hand, const FirmContext& firm,
                            const std::vector<Preview>& typed);

}  // namespace quillmark
