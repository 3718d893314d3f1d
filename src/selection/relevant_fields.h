#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/options.h"
#include "selection/firm_context.h"
#include "selection/job_in_hand.h"

/// Which fields a job needs: worked out from the job list and the options, and listed in the grid.
namespace quillmark {

/// A relevant field that is not optional is marked while it is unfilled. Field 175 is optional but for a
/// condominium.
bool IsOptionalField(int n, const Job& job);

/// What the documents of a job list ask for.
struct JobNeeds {
    std::vector<int> fields;               ///< each once, as the documents ask for them
    std::vector<std::string> userMarkers;  ///< of user-defined fields, each once
    OptionSet options;                     ///< that make sense for one of the documents
    std::string capacity;                  ///< of the fiduciary, as the deed implies it; empty for none
    bool principalIsSeller = false;        ///< a power of attorney is the only seller's
};

/// The needs of these documents in this job. `customForms` is the folder of the firm's own forms, whose lists
/// of markers are read. Throws FileError and RecordError for one that cannot be.
JobNeeds NeedsOf(const std::vector<JobListLine>& list, const Job& job,
                 const std::filesystem::path& customForms);

/// Marks the fields relevant. An attorney's field (2 to 9) with one firm default or none is filled silently
/// instead, and takes no row.
void AddFields(std::span<const int> fields, JobInHand& hand, const FirmContext& firm);

/// Rebuilds the relevant fields, the grid and the counts. Gives the options that make sense. Throws as
/// `NeedsOf`.
OptionSet RefreshFields(JobInHand& hand, const FirmContext& firm);

/// Markers of what is still to be filled, in the order of the fields, user-defined rows last.
struct OpenFields {
    std::vector<std::string> required;
    std::vector<std::string> optional;
};
OpenFields OpenFieldsOf(const JobInHand& hand);

/// Counts what is relevant and what is still to be filled, in all and by group.
void CountFields(JobInHand& hand);

/// The document name of a custom document's entry "[ NAME ]"; empty for other entries.
std::string_view CustomDocumentName(std::string_view entry);

}  // namespace quillmark
