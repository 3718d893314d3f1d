#include "cli/job_source.h"

#include <algorithm>

#include "core/fields.h"
#include "core/job_file.h"
#include "core/text_conversions.h"
#include "entry/smart_fields.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "selection/relevant_fields.h"

namespace quillmark::cli {

namespace fs = std::filesystem;

namespace {

/// The seller's attorney's fields, which the firm's defaults fill. The last one, the e-mail address, belongs
/// to the attorney chosen, so of several none is taken.

void FillFirmFields(const FirmDefaults& defaults, Job& job) {
    for (int n = field::SellerLawfirm; n <= field::SellerAttyEmail; ++n) {
        if (job.IsFilled(n)) continue;
        const std::string value = defaults.ValueOf(FieldMarker(n));
        const auto choice = value.find(';');
        if (choice != value.npos && n == field::SellerAttyEmail) continue;
        job.SetField(n, Trimmed(std::string_view(value).substr(0, choice)));
        // A single default is not the job's own value, so it is not kept with the job.
        if (choice == value.npos && job.IsFilled(n)) job.txtField(n).top = 0;
    }
}

}  // namespace

std::vector<std::string> ReadJob(const JobSource& source, Folders folders, const FirmDefaults& defaults,
                                 Job& job) {
    folders.ImagesFolder = source.ImagesFolder;
    ReadJobFile(folders, source.file, job, IsTemplateName(source.name));
    job.name = source.name;
    FillFirmFields(defaults, job);
    // Nobody has chosen fields in a grid here, so every one of them counts.
    for (int n = 1; n <= kFields; ++n) job.txtField(n).relevant = true;
    std::vector<std::string> refused;
    for (int n : AttachSmartFields(job))
        refused.push_back(std::string(FieldMarker(n)) + " holds \"" + job.D(n) + "\", which is not a date");
    for (int n = 1; n <= kFields; ++n)
        if (job.D(n) == kImageLiteral && job.FieldPictures[static_cast<std::size_t>(n)].empty())
            refused.push_back(std::string(FieldMarker(n)) + " is a picture, but its file \"" + job.name +
                              "_" + std::to_string(n) + ".bmp\" is missing");
    return refused;
}

void KeepRelevantFields(const std::vector<std::string>& documents, const FirmContext& firm, Job& job) {
    JobInHand hand;
    hand.job = job;
    for (int n = 1; n <= kFields; ++n) {
        hand.job.txtField(n).relevant = false;
        hand.job.txtField(n).locked = job.IsFilled(n);
    }
    for (const std::string& document : documents) hand.List2.push_back({document, false});
    RefreshFields(hand, firm);
    for (int n = 1; n <= kFields; ++n) job.txtField(n).relevant = hand.job.txtField(n).relevant;
}

}  // namespace quillmark::cli
