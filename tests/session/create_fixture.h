#pragma once

#include <functional>

#include "session/office_fixture.h"

namespace quillmark::test {

/// An office with the job "Hollis": a deed and a letter on letterhead, an attorney whom the address book does
/// not know, an attorney of the firm with a juris number.
class CreateTest : public OfficeTest {
 protected:
    CreateTest() { WriteJob(kFields); }

    /// The job's file with these field records.
    void WriteJob(const std::string& fields, const std::string& documents = kDocuments) {
        std::filesystem::create_directories(scratch / "data");
        std::string bytes = documents;
        for (int n = 1; n <= kOptions; ++n) {
            const bool on = n == OneSeller || n == Person || n == OneBuyer || n == Letterhead;
            bytes += std::string("\"C") + (n < 10 ? "0" : "") + std::to_string(n) + "\"," +
                     (on ? "#TRUE#" : "#FALSE#") + "\r\n";
        }
        WriteBytes(JobFile("Hollis"), bytes + fields);
    }

    /// The program with this word processor and the job open.
    void Open(const std::string& job = "Hollis") {
        screen = std::make_unique<MainScreen>(scratch.path(), Machine{.clock = clock,
                                                                      .dialogs = dialogs,
                                                                      .shell = shell,
                                                                      .startWord = startWord,
                                                                      .onProgress = [this] {
                                                                          if (onProgress) onProgress();
                                                                      }});
        screen->Start();
        screen->Click("cmdOpen");
        screen->LoadJob(job, false);
        dialogs.TakeShown();
    }
    void Create(ScriptedDialogs::Answers answers = {"Yes"}) {
        Answer(std::move(answers));
        screen->Click("cmdCreate");
    }
    std::vector<std::string> TitlesShown() {
        std::vector<std::string> titles;
        for (const auto& box : dialogs.TakeShown()) titles.push_back(box.title);
        return titles;
    }
    std::filesystem::path Document(const std::string& name = "Hollis_QMF.docx") const {
        return scratch / "Documents" / name;
    }
    std::vector<std::string> Documents() const {
        std::vector<std::string> names;
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(scratch / "Documents", none))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    static constexpr const char* kDocuments = "\"000\",\"Deed / Warranty\"\r\n\"000\",\"Privacy Policy\"\r\n";
    static constexpr const char* kFields =
        "\"003\",\"Ruth Penfield/412345\"\r\n\"012\",\"Ann Lee\"\r\n\"013\",\"1 Elm Street\"\r\n"
        "\"015\",\"Avon, CT 06001\"\r\n\"016\",\"(860) 555-0100\"\r\n\"017\",\"(860) 555-0101\"\r\n"
        "\"021\",\"Walter Hollis\"\r\n\"072\",\"Guilford, CT 06437\"\r\n";

    std::function<word::StartedWordProcessor()> startWord = [] {
        return word::StartWordProcessor(word::WordProcessor::Embedded);
    };
    std::function<void()> onProgress;
};

}  // namespace quillmark::test
