#pragma once

#include <cstddef>
#include <string>
#include <string_view>
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

/// All that is open in a job before CREATE: the one finding that the window, the command line and the check
/// of jobs in bulk show.
struct OpenList {
    struct Question {
        std::string document;  ///< that asks it
        std::string text;
    };
    struct Failure {
        std::string document;
        std::string why;
    };

    /// Relevant fields without a value, but for those that CREATE fills itself, and user-defined rows, in the
    /// order of the grid. Markers that no row asks for come last.
    std::vector<Blank> blanks;
    /// Markers of rows that are open and leave no hole: CREATE itself fills them.
    std::vector<std::string> filledByCreate;
    std::vector<std::string> withHoles;    ///< entries of the job list in which a marker would stand
    std::vector<std::string> withoutText;  ///< entries that are not written yet: an empty section
    std::vector<Question> questions;       ///< that CREATE will ask about documents
    std::vector<Failure> failures;         ///< entries that cannot be made

    std::size_t Required() const;
    bool IsEmpty() const {
        return blanks.empty() && withoutText.empty() && questions.empty() && failures.empty();
    }
};

/// `typed` is what CREATE would type now, entry by entry (TypeEach).
OpenList OpenListOf(const JobInHand& hand, const FirmContext& firm, const std::vector<TypedEntry>& typed);

/// The markers that stand in a finished document though no row of the grid asks for their field: nobody was
/// told that they are open. Each once, as the registry has them, in the order of the text.
std::vector<std::string> MarkersNobodyAsksFor(std::string_view documentText, const JobInHand& hand);

}  // namespace quillmark
