#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace quillmark {

/// One change of several that belong together. Paths are relative to the folder that the changes are made in:
/// a name in it, or one in a folder directly below it.
struct FileChange {
    enum class Kind {
        Write,   ///< `bytes` become the content of `file`
        Move,    ///< `file` gets the name `to`; no file may have it
        Remove,  ///< `file` goes
    };
    Kind kind;
    std::filesystem::path file;
    std::string bytes = {};
    std::filesystem::path to = {};
};

/// Makes all changes, in their order, or none. False, with nothing changed, where a name to move to is taken.
/// Throws FileError, with everything as it was; where even that could not be brought about, and after a kill
/// at any moment, `UndoBrokenChange` does it. What the files held before stands meanwhile in the folder, in
/// ".quillmark-change".
///
/// Only one program at a time may change a folder so: the caller holds a lock, and has called
/// `UndoBrokenChange` under it.
bool ChangeTogether(const std::filesystem::path& folder, const std::vector<FileChange>& changes);

/// Takes back what a program that ended in the midst of its changes has left, under the same lock. False
/// where there is nothing of the kind. Throws FileError; a record of changes that is damaged or names
/// anything outside the folder is set aside and nothing is taken back.
bool UndoBrokenChange(const std::filesystem::path& folder);

/// Whether changes are under way, or broken off.
bool HoldsBrokenChange(const std::filesystem::path& folder);

}  // namespace quillmark
