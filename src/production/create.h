#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/job.h"
#include "core/settings.h"
#include "production/word_session.h"
#include "word/start.h"

namespace quillmark {

/// The progress bar of a run: one unit for each entry of the job list and one for the finishing.
struct CreateProgress {
    double value = 0;
    double maximum = 1;
    std::size_t document =
        0;  ///< the entry in hand, from 1; 0 before the first one, past the last while finishing
    std::size_t documents = 0;  ///< entries of the job list
};

/// What a run makes, and how.
struct CreateOrder {
    std::vector<std::string> DocumentNames;  ///< the job list, in order
    std::string LegalList;                   ///< names of the entries on legal-size paper, joined by commas
    Settings settings;
    std::chrono::year_month_day today;
    bool nameUsable = true;  ///< the job's name may stand in the footers
    std::string saveAs;      ///< the document's file; empty to leave it unsaved
    std::function<word::StartedWordProcessor()> startWord;
    std::function<void(const CreateProgress&)> onProgress = {};
};

/// A run that failed. what() is the word processor's, or the system's, own description; the documents are
/// gone, the checkers' options are restored and the word processor has quit without saving.
class CreateError : public std::runtime_error {
 public:
    CreateError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    int number() const { return number_; }  ///< the word processor's error number
    /// The sentence for the user.
    std::string Message() const;

 private:
    int number_;
};

/// One run of CREATE: every entry of the job list is typed as a section of one new document, which then gets
/// its paper and footers, is saved and shown.
class CreateRun {
 public:
    CreateRun(Job& job, CreateOrder order);

    /// Throws CreateError, and std::invalid_argument for an entry that names no document (before the word
    /// processor is started). The job's values are as after `NormalisedValues::Undo` in every case.
    void Run();

    /// The word processor with the finished document, open until its next user ends it.
    WordSession& session() { return *session_; }
    /// Letters of the notices that the documents called for, as often as they did.
    const std::string& CreateNotices() const { return notices_; }

 private:
    void CheckEntries() const;
    void Produce();
    void TypeDocuments();
    void TypeDocumentAt(std::size_t entry);
    void FinishDocument();
    void ShowWord();
    [[noreturn]] void Abandon(int number, const std::string& description);
    void Report(double value, std::size_t document);

    Job& job_;
    CreateOrder order_;
    std::optional<WordSession> session_;
    std::string notices_;
    CreateProgress progress_;
};

}  // namespace quillmark
