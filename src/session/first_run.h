#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "session/main_screen.h"

/// The first start in a new program folder: it is set up with a sample job, and the user is offered a way in.
namespace quillmark {

/// A file that a new program folder begins with.
struct SeedFile {
    std::string name;  ///< below the program folder, separated by slashes
    std::string bytes;
};

/// The sample job's name in the job folder.
inline constexpr std::string_view kSampleJob = "Whitcomb - 27 Beech Hill Road";

/// Whether the folder has never been worked in: it holds neither an office nor a "data" folder, or is not
/// there.
bool IsFirstRun(const std::filesystem::path& programFolder);

/// Makes the folder with the files in it. A file that is there already is left alone. Throws FileError.
void SetUpProgramFolder(const std::filesystem::path& programFolder, const std::vector<SeedFile>& files);

/// What a newcomer may choose to begin with.
enum class FirstStep {
    SampleJob,     ///< open the sample job; CREATE makes its documents
    FirmDefaults,  ///< open the settings list, to enter the firm's own details
    NewJob,        ///< stay in the empty name box
};

/// Does to a screen that has just started what the user would do for this step.
void TakeFirstStep(MainScreen& screen, FirstStep step);

}  // namespace quillmark
