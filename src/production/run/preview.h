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
    std::filesystem::path CustomFormsFolder = {};  ///< where the firm's own forms lie
    bool nameUsable = true;                        ///< the job's name may stand in the footers
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

/// One entry of the job list typed alone.
struct TypedEntry {
    std::u32string text;
    std::vector<ValuePlace> open;        ///< the markers in it, in order
    std::vector<std::string> questions;  ///< that typing it asks of the person
    std::string failure;                 ///< why it cannot be typed; empty where it can
};

/// Each entry of the job list as CREATE would type it now, in order.
std::vector<TypedEntry> TypeEach(const PreviewOrder& order);

}  // namespace quillmark
