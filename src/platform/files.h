#pragma once

#include <filesystem>

/// Changes of files that last through a power cut. All throw FileError (atomic_file.h).
namespace quillmark {

/// Removes a file; none is no error.
void RemoveFile(const std::filesystem::path& file);

/// Gives a file another name, in the place of a file that has it.
void MoveOnto(const std::filesystem::path& file, const std::filesystem::path& newFile);

/// Makes a folder that may be there already. The folder above it must be: with a share away, its path is not
/// built anew on the local disk.
void MakeFolder(const std::filesystem::path& folder);

/// Makes an empty file of that name. False if there is one, even one that another computer has made at this
/// moment: so of two that want a name one gets it.
bool ClaimName(const std::filesystem::path& file);

/// Claims the name, or the first of "NAME (2)", "NAME (3)" and so on that is free.
std::filesystem::path ClaimedName(const std::filesystem::path& wanted);
/// The same name unclaimed, to be proposed to a person.
std::filesystem::path FreeName(const std::filesystem::path& wanted);
/// A claimed file that never got its content goes again; whatever else stands there stays.
void GiveUpClaim(const std::filesystem::path& file);

/// Makes what was last done to the names in a folder last. Not every file system can, so a failure is none of
/// the caller's.
void FlushFolder(const std::filesystem::path& folder);

}  // namespace quillmark
