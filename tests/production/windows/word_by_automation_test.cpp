#include <gmock/gmock.h>

#include <chrono>
#include <map>
#include <thread>

#include "core/fields.h"
#include "platform/paths.h"
#include "production/run/create.h"
#include "production/run/custom_form.h"
#include "production/sample_deal.h"
#include "selection/document_catalogue.h"
#include "support/form_docx.h"
#include "support/scratch.h"
#include "word/com/com_clipboard.h"
#include "word/com/com_word.h"
#include "word/docx/zip/zip_reader.h"
#include "word_server/served_object.h"
#include "word_server/word_server.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
using Kind = Misbehaviour::Kind;

/// CREATE by automation, with the embedded word processor in another process under Word's name.
class WordByAutomation : public ::testing::Test {
 protected:
    void SetUp() override {
        if (!registered.isThere) GTEST_SKIP() << "this machine has a Word of its own";
        job.name = "Hollis";
        order.DocumentNames = {"Deed / Warranty", "Schedule A"};
        order.today = std::chrono::year(2025) / 4 / 6;
        order.CustomFormsFolder = folder / "customforms";
        order.dialogs = &dialogs;
    }

    /// Word as the program finds it; it behaves so.
    void StartsWord(Misbehaviour plan = {}, word::ComPatience patience = {}) {
        order.startWord = [this, plan, patience]() -> word::StartedWordProcessor {
            application = word::CreateComObject("Word.Application", patience);
            const word::Argument arguments[] = {
                {static_cast<std::int32_t>(plan.kind)}, {plan.at}, {plan.times}};
            application->Call("Misbehave", arguments);
            return {application, std::make_shared<word::SystemClipboard>()};
        };
    }
    /// The same word processor in this process, under the same conditions: without hints.
    void StartsWithin() {
        order.startWord = []() -> word::StartedWordProcessor {
            auto started = word::StartWordProcessor(word::WordProcessor::Embedded);
            return {started.application, started.clipboard, true};
        };
    }

    std::map<std::string, std::string> PartsOf(const char* name) {
        const auto file = folder / name;
        CreateRun run(job, order);
        run.Run(TextOf(file));
        run.session().WordDoc.Close(false);
        std::map<std::string, std::string> parts;
        word::docx::zip::ZipReader package(ReadBytes(file), name);
        for (const std::string& part : package.Names()) parts[part] = package.Read(part);
        return parts;
    }

    /// How a run ends that must fail; the job must be as before.
    CreateError Failure() {
        const std::string before = job.D(field::ClosingTime) + "|" + job.D(field::DocumentDate);
        try {
            CreateRun(job, order).Run(TextOf(folder / "failed.docx"));
        } catch (const CreateError& failure) {
            EXPECT_EQ(job.D(field::ClosingTime) + "|" + job.D(field::DocumentDate), before);
            EXPECT_FALSE(std::filesystem::exists(folder / "failed.docx"));
            return failure;
        }
        ADD_FAILURE() << "the run went through";
        return {0, ""};
    }

    int Count(const char* property) { return word::ToWhole(application->Get(property)); }

    RegisteredWord registered{QUILLMARK_WORD_SERVER};
    ScratchFolder folder;
    Job job = FullDeal();
    CreateOrder order;
    ScriptedDialogs dialogs;
    word::ObjectPtr application;
};

TEST_F(WordByAutomation, EveryDocumentIsTheSameAsWithoutIt) {
    const auto documents = DocumentCatalogue();
    order.DocumentNames.assign(documents.begin(), documents.end());
    order.DocumentNames.insert(order.DocumentNames.end(), {"FILE SUMMARY SHEET", "[ Rider ]"});
    order.LegalList = "Schedule A,";
    job.SetField(field::Seller1Name, job.D(field::Seller1Name) + " “née” Brontë – Søn");
    FormDocx form;
    form.body = Line("Sold by [seller 1 name] for [note].");
    form.footer = Line("[seller 1 name]");
    WriteBytes(order.CustomFormsFolder / "Rider.docx", form.Bytes());
    WriteBytes(order.CustomFormsFolder / "Rider.inf",
               FormMarkerRecords({{"[seller 1 name]", field::Seller1Name, 0}, {"[note]", 0, 0}}));
    job.SetUserField("[note]", std::string(300, 'n') + "\r§");

    StartsWithin();
    const auto within = PartsOf("within.docx");
    StartsWord();
    const auto byAutomation = PartsOf("word.docx");
    ASSERT_EQ(within.size(), byAutomation.size());
    for (const auto& [part, bytes] : within) {
        ASSERT_TRUE(byAutomation.contains(part)) << part;
        EXPECT_TRUE(byAutomation.at(part) == bytes) << part;
    }
    const double calls = Count("CallsServed");
    RecordProperty("calls", static_cast<int>(calls));
    EXPECT_GT(calls, 1000);
    EXPECT_LT((calls + Count("QuestionsAsked")) / calls, 1.2) << "ids of members are asked for too often";
}

TEST_F(WordByAutomation, ADialogThatStaysEndsTheRunAndSaysWhatToDo) {
    StartsWord({Kind::Reject, 60, 1'000'000}, {.busy = 300ms});
    EXPECT_THAT(Failure().what(), HasSubstr("close it and try again"));
}

TEST_F(WordByAutomation, AMemberThatIsRefusedEndsTheRunWithItsNumberAndWords) {
    StartsWord({Kind::Refuse, 60, 1});
    const CreateError refused = Failure();
    EXPECT_EQ(refused.number(), word::error::kNotAvailable);
    EXPECT_STREQ(refused.what(), "This command is not available – “today”.");
}

TEST_F(WordByAutomation, AWordThatDiesEndsTheRunAndTheNextOneWorks) {
    StartsWord({Kind::Die, 60, 1});
    EXPECT_EQ(Failure().number(), word::error::kServerGone);
    EXPECT_THROW(application->Get("Version"), word::AutomationError);
    StartsWord();
    EXPECT_GT(PartsOf("word.docx").size(), 5u);
}

TEST_F(WordByAutomation, AWordThatTheUserHasClosedIsNoObstacle) {
    StartsWord();
    CreateRun run(job, order);
    run.Run(TextOf(folder / "word.docx"));
    application->Call("Quit");
    std::this_thread::sleep_for(300ms);
    try {
        run.session().WordApp.Quit();
        ADD_FAILURE() << "nobody was there";
    } catch (const word::AutomationError& gone) {
        EXPECT_EQ(gone.number(), word::error::kServerGone);
    }
}

}  // namespace
}  // namespace quillmark::test
