#pragma once

#include <string>
#include <string_view>

#include "core/folders.h"

namespace quillmark {

/// Notes that this person has just saved the job, for those who are asked before they save over it: in the
/// file ".jobs.log" of the job folder, the last 200 saves. Without it nobody is named; nothing else depends
/// on it.
void NoteSave(const Folders& folders, std::string_view name);

/// "saved by jane at FRONTDESK, 2026-03-05 10:16:04"; "saved by another user" where the file has changed
/// since the last save that was noted.
std::string LastSaveOf(const Folders& folders, std::string_view name);

}  // namespace quillmark
