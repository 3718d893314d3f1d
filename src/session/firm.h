#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/settings.h"
#include "entry/address_book_files.h"
#include "selection/firm_context.h"
#include "session/client_folders.h"
#include "session/machine.h"

namespace quillmark {

/// The firm at work: its settings, folders and own details, and in Para-Pro mode the clients whose files are
/// kept apart. It reads and writes their files and touches nothing of the screen.
class Firm {
 public:
    /// `machine` must outlive the object.
    Firm(std::filesystem::path programFolder, Machine& machine);

    /// Reads settings and clients. Tells of a data folder that is out of reach; the local one serves then. A
    /// damaged file is set aside and told of, and defaults serve. Throws FileError.
    void Read();
    /// Whether the data folder has been used by a newer program than this one.
    bool DataIsNewer() const;
    /// Takes the folders and defaults of a client, of the firm itself for the empty text. Damaged defaults
    /// are set aside and told of. Throws FileError.
    void Serve(std::string_view client);
    /// Makes those that are missing.
    void MakeFolders() const;

    const FirmContext& Context() const { return context_; }
    const std::filesystem::path& ProgramFolder() const { return programFolder_; }
    const Settings& settings() const { return settings_; }
    const Folders& folders() const { return folders_; }
    const FirmDefaults& defaults() const { return defaults_; }
    AddressBooks Books() const;
    bool IsUnset() const { return !settings_.paraPro && defaults_.IsEmpty(); }

    /// For the settings list. `Keep` changes in both files what this session has changed and leaves what
    /// others have changed meanwhile; false if the person would rather not replace what both have changed.
    /// Throws FileError, RecordError and UnencodableError.
    Settings& ChangeSettings() { return settings_; }
    void ChangeDatabasePath(const std::string& path);
    bool Keep(const FirmDefaults& mine);

    /// In Para-Pro mode: the law firm being served, and the lines of the client list; the first one adds one.
    const std::string& Client() const { return client_; }
    const std::vector<std::string>& ClientLines() const { return clientLines_; }
    bool ServesClient() const { return settings_.paraPro && !client_.empty(); }
    /// Makes the client's folder with the firm's own defaults in it; the name is a good one. False, with
    /// nothing changed, if the folder is there already. Throws FileError.
    bool AddClient(const std::string& name);
    /// Takes the client off the list and deletes the folder that was made for it. False if there is no such
    /// folder directly below the data folder: then nothing is deleted. Throws FileError.
    bool DeleteClient(std::string_view name);

 private:
    void UndoUnfinishedRestore(const std::filesystem::path& data) const;
    Settings ReachableSettings() const;
    void ReadClients();
    template <class Reader>
    auto ReadOrSetAside(const std::filesystem::path& file, Reader read) -> decltype(read());
    using Merge = std::function<std::string(const std::string& present, std::vector<std::string>& contested)>;
    bool KeepFile(const std::filesystem::path& file, std::size_t limit, const Merge& merge);
    bool ConfirmOver(const std::filesystem::path& file, const std::vector<std::string>& contested) const;

    std::filesystem::path programFolder_;
    Machine& machine_;
    ClientFolders clients_;
    Settings settings_;
    Settings readSettings_;  ///< as last read or written
    Folders folders_;
    FirmDefaults defaults_;
    FirmContext context_;
    std::vector<std::string> clientLines_;
    std::string client_;
    bool dataPathLost_ = false;
};

/// The line of the client list that adds one.
inline constexpr std::string_view kAddClient = "< ADD LAWFIRM / CLIENT >";

}  // namespace quillmark
