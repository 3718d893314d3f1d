#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "core/job.h"
#include "core/settings.h"
#include "production/run/value_places.h"

namespace quillmark {

/// What CREATE would make now, as plain values: an order can be carried out on any thread.
struct PreviewOrder {
    Job job;
    std::vector<std::string> JobList;  ///< in order
    std::string document;              ///< the one entry to make; empty for all
    std::string LegalList;             ///< names of the entries on legal-size paper, joined by commas
    Settings settings;
    std::chrono::year_month_day today;
    bool nameUsable = true;  ///< the job's name may stand in the footers
};

/// The text of a document as it was typed: a paragraph's end is one character, '\r', tables stand in reading
/// order, pictures and form fields are a character each.
struct Preview {
    std::u32string text;
    std::vector<ValuePlace> values;    ///< in order
    std::vector<std::string> missing;  ///< entries that could not be typed
    std::vector<std::string> texts;    ///< by field number: the values that the documents were typed from
};

/// Makes the document at `to`, over what is there, and nothing else: nobody is asked, and questions of the
/// documents get their default answers. Without `to` the text and its values alone. What would keep CREATE
/// from being run does not keep this: a proration date that is no date counts as open. Of several documents
/// one that cannot be typed is an empty section; throws CreateError when none can.
Preview MakePreview(const PreviewOrder& order, const std::filesystem::path& to);

/// Each entry of the job list typed alone, in order: its text, and of the values the open ones. What cannot
/// be typed is empty.
std::vector<Preview> OpenMarkersOfEach(const PreviewOrder& order);

}  // namespace quillmark
