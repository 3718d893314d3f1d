#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "core/job_file.h"
#include "core/job_folder.h"
#include "platform/atomic_file.h"
#include "session/main_screen.h"
#include "support/scratch.h"
#include "word/start.h"

namespace quillmark::test {

/// A shell that opens nothing and remembers what it was asked for.
class QuietShell final : public Shell {
 public:
    explicit QuietShell(std::filesystem::path home) : home_(std::move(home)) {}
    std::filesystem::path FolderOf(SpecialFolder folder) override {
        return home_ / (folder == SpecialFolder::Documents ? "Documents" : "Local");
    }
    void Open(const std::string& fileOrAddress) override { opened.push_back(fileOrAddress); }
    void Start(const std::filesystem::path& program, const std::vector<std::string>& arguments) override {
        started.push_back(program.filename().string() + (arguments.empty() ? "" : " " + arguments.front()));
    }

    std::vector<std::string> opened;
    std::vector<std::string> started;

 private:
    std::filesystem::path home_;
};

/// An office in a folder of its own, its program folder being the scratch folder, on March 9, 2026.
class OfficeTest : public ::testing::Test {
 protected:
    OfficeTest() {
        WriteBytes(scratch / "defaults.fld", FirmDefaultRecord("[seller atty]", "Nora Hale/412345"));
    }

    static std::string FirmDefaultRecord(std::string_view marker, std::string_view value) {
        return "\"" + FirmDefaultRow(marker, value) + "\"\r\n";
    }

    /// Starts the program; the boxes of the start are answered by `answers`.
    MainScreen& Start(ScriptedDialogs::Answers answers = {}) {
        dialogs.SetAnswers(std::move(answers));
        screen = std::make_unique<MainScreen>(
            scratch.path(),
            Machine{.clock = clock,
                    .dialogs = dialogs,
                    .shell = shell,
                    .http = http,
                    .printer = printer,
                    .startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); },
                    .waitForFiles = waitForFiles});
        screen->Start();
        return *screen;
    }
    const ScreenState& State() const { return screen->State(); }
    void Answer(ScriptedDialogs::Answers answers) { dialogs.SetAnswers(std::move(answers)); }
    std::filesystem::path JobFile(std::string_view name) const {
        return scratch.path() / "data" / (std::string(name) + ".dat");
    }
    std::string LastBox() const { return dialogs.Shown().empty() ? "" : dialogs.Shown().back().text; }

    /// A named job with a deed and a seller.
    void MakeSmallJob(std::string_view name) {
        screen->TypeName(name);
        screen->EnterName();
        screen->PickDocument("Deed / Warranty");
        screen->EnterField(21, "Anna Abbott", EntryWay::Type);
    }

    ScratchFolder scratch;
    FixedClock clock{std::chrono::year(2026) / 3 / 9};
    ScriptedDialogs dialogs;
    QuietShell shell{scratch.path()};
    HttpClient* http = nullptr;
    Printer* printer = nullptr;
    WaitForFile waitForFiles;
    std::unique_ptr<MainScreen> screen;
};

}  // namespace quillmark::test
