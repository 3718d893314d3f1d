#include "session/first_run.h"

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "session/program_folder.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

void MakeFolder(const fs::path& folder) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (failed) throw FileError(folder, failed);
}

}  // namespace

bool IsFirstRun(const fs::path& programFolder) {
    return !HoldsOffice(programFolder) && !fs::exists(FindExisting(programFolder / "data"));
}

void SetUpProgramFolder(const fs::path& programFolder, const std::vector<SeedFile>& files) {
    MakeFolder(programFolder / "data");
    for (const SeedFile& seed : files) {
        const fs::path file = FindExisting(programFolder / PathOf(seed.name));
        if (fs::exists(file)) continue;
        MakeFolder(file.parent_path());
        ReplaceFile(file, seed.bytes);
    }
}

void TakeFirstStep(MainScreen& screen, FirstStep step) {
    switch (step) {
        case FirstStep::SampleJob:
            screen.OpenBrowser(false);
            screen.LoadJob(kSampleJob, false);
            break;
        case FirstStep::FirmDefaults:
            screen.TypeName("DEFAULTS");
            screen.EnterName();
            break;
        case FirstStep::NewJob:
            screen.FocusName();
            break;
    }
}

}  // namespace quillmark
