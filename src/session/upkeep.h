#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "platform/machine.h"

/// What the program does for itself before the first job: upgrades, patches, and files that the system has
/// put aside. Where a system has nothing of the kind, there is nothing to do.
namespace quillmark {

struct Machine;

/// All of it, in order. True when the program is to end: another copy of it has been brought to the front, or
/// a step below wants so.
bool EndsAtStart(const std::filesystem::path& programFolder, const Machine& machine);

/// Where the system's file virtualisation keeps this install's files: "VirtualStore" below the local
/// application data, with the program folder's path; the program folder itself if there is no such folder.
std::filesystem::path StoreFolderOf(const std::filesystem::path& programFolder, Shell& shell);

/// Starts the upgrade tool.
void StartUpgrade(const std::filesystem::path& programFolder, Shell& shell);

/// Runs "PATCH.EXE", if there is one, after a test that the folder may be written. True when the program is
/// to end.
bool RunPatch(const std::filesystem::path& programFolder, Shell& shell, Dialogs& dialogs);

/// Offers a newer release: `http` is asked for its date, `programDate` is the program file's. True when the
/// upgrade was started and the program is to end.
bool OffersUpgrade(const std::filesystem::path& programFolder, std::chrono::year_month_day programDate,
                   HttpClient& http, Shell& shell, Dialogs& dialogs);

/// Brings custom forms back that virtualisation has put aside. True when the program is to end.
bool RestoresStrandedFiles(const std::filesystem::path& programFolder,
                           const std::filesystem::path& storeFolder, Dialogs& dialogs);

}  // namespace quillmark
