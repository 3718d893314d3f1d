#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/job.h"
#include "core/settings.h"
#include "platform/dialogs.h"
#include "production/kit/word_session.h"
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
    std::vector<std::string> DocumentNames;  ///< what is typed, in order: the job list
    std::vector<std::string> JobList = {};   ///< all of it where only some of it is typed; empty otherwise
    std::string LegalList;                   ///< names of the entries on legal-size paper, joined by commas
    Settings settings;
    std::chrono::year_month_day today;
    std::filesystem::path CustomFormsFolder = {};  ///< where the firm's own forms lie
    bool nameUsable = true;                        ///< the job's name may stand in the footers
    Dialogs* dialogs = nullptr;  ///< whom documents ask; null: each question gets its default answer
    std::function<word::StartedWordProcessor()> startWord;
    std::function<void(const CreateProgress&)> onProgress = {};
};

/// A run that failed. what() is the word processor's, or the system's, own description.
class CreateError : public std::runtime_error {
 public:
    CreateError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    /// The exception in hand as a run's own: a number for every kind of failure. For use in a catch block.
    static CreateError OfPresentException();

    int number() const { return number_; }  ///< the word processor's, or the system's, error number
    /// The sentence for the user.
    std::string Message() const;

 private:
    int number_;
};

/// One run of CREATE: every entry of the job list is typed as a section of one new document, which then gets
/// its paper and footers, is saved and shown. What else belongs to a run, such as keeping the job, is its
/// caller's and goes between the steps by `Attempt`.
///
/// A failure in any step ends the run with CreateError: the checkers' options are restored, the word
/// processor has quit without saving, and the job's values are as after `PutValuesBack`.
class CreateRun {
 public:
    CreateRun(Job& job, CreateOrder order);
    ~CreateRun();

    /// All steps in a row; `file` as for `Save`, empty to leave the document unsaved.
    void Run(const std::string& file);

    /// Normalises the values, starts the word processor, types the documents and finishes their sections. An
    /// entry that names no document fails before the word processor is started.
    void Produce();
    /// Puts back the values that were changed for typing alone.
    void PutValuesBack();
    void Save(const std::string& file);
    void RestoreCheckers();
    /// Brings the document before the user.
    void Show();

    /// A step of the caller's: what it throws ends the run like a failure of its own.
    template <class Step>
    void Attempt(Step step) {
        try {
            step();
        } catch (...) {
            Abandon();
        }
    }

    /// The word processor with the finished document, open until its next user ends it.
    WordSession& session() { return *session_; }
    /// Whether the document lives in this program alone, where nobody sees it until it is a file.
    bool IsEmbedded() const { return embedded_; }
    /// Letters of the notices that the documents called for, as often as they did.
    const std::string& CreateNotices() const { return notices_; }

 private:
    /// Puts the values back on every way out.
    class ValuesForTyping;

    void CheckEntries() const;
    const std::vector<std::string>& JobList() const;
    void StartWord();
    void TypeDocumentAt(std::size_t entry);
    void FinishDocument();
    void DescribeFile();
    [[noreturn]] void Abandon();
    void Report(double value, std::size_t document);

    Job& job_;
    CreateOrder order_;
    ScriptedDialogs defaultAnswers_;
    std::unique_ptr<ValuesForTyping> values_;
    std::optional<WordSession> session_;
    bool embedded_ = false;
    std::string notices_;
    CreateProgress progress_;
};

}  // namespace quillmark
