#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_holder.h"

namespace quillmark {

/// The law firms that an independent paralegal serves: each a line of "parapro.dir" and a folder below the
/// local data folder. Folder and line come and go together; what a program that died has left of it is
/// brought to its end at the next start.
class ClientFolders {
 public:
    ClientFolders(std::filesystem::path programFolder, WaitForFile wait)
        : programFolder_(std::move(programFolder)), wait_(std::move(wait)) {}

    struct List {
        std::vector<std::string> names;
        std::string trouble;  ///< what cannot be a client and why, each on a line after a line break
    };
    /// The lines that are names of clients. Throws FileError.
    List Read() const;

    /// Makes the client's folder with the firm's own defaults in it; the name is a good one. False, with
    /// nothing changed, if the folder is there already. Throws FileError.
    bool Add(const std::string& name) const;
    /// Takes the client off the list and deletes the folder that was made for it. False if there is no such
    /// folder directly below the data folder: then nothing is deleted. Throws FileError.
    bool Delete(std::string_view name) const;
    /// Ends what was broken off, as far as the folder lets it.
    void Mend() const;

 private:
    std::filesystem::path FolderOf(std::string_view name) const;
    bool IsOwn(const std::filesystem::path& folder) const;
    void ChangeList(std::string_view name, bool isToStand) const;
    void EndAdding(const std::filesystem::path& folder) const;
    void EndDeleting(const std::filesystem::path& folder) const;
    void MendFolder(const std::filesystem::path& folder) const;

    std::filesystem::path programFolder_;
    WaitForFile wait_;
};

/// What keeps a name from being a client's, as FaultOfFileName says it; empty for a good name. A client has a
/// folder of this name below the data folder, so none lies in another's.
std::string FaultOfClientName(std::string_view name);

}  // namespace quillmark
