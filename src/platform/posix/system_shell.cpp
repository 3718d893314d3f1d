#ifndef _WIN32

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

#include "platform/machine.h"
#include "platform/paths.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

fs::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value && *value == '/' ? fs::path(value) : fs::path();
}

bool IsOnPath(const char* program) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');)
        if (!folder.empty() && ::access((fs::path(folder) / program).c_str(), X_OK) == 0) return true;
    return false;
}

/// The value of XDG_DOCUMENTS_DIR="$HOME/..." in the user's file of folder names.
fs::path DocumentsOfUserDirs(const fs::path& home) {
    const fs::path config = FromEnvironment("XDG_CONFIG_HOME");
    std::ifstream in((config.empty() ? home / ".config" : config) / "user-dirs.dirs");
    constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view kHome = "$HOME/";
    for (std::string line; std::getline(in, line);) {
        if (!line.starts_with(kKey) || !line.ends_with('"')) continue;
        const std::string value = line.substr(kKey.size(), line.size() - kKey.size() - 1);
        if (value.starts_with(kHome)) return home / value.substr(kHome.size());
        if (value.starts_with('/')) return value;
    }
    return {};
}

/// What the program's own child runs: the program that was asked for becomes nobody's child, so that it
/// needs no waiting for and outlives this one. Nothing but system calls may stand here.
[[noreturn]] void RunDetached(char* const* words, int report) {
    ::setsid();
    const pid_t child = ::fork();
    if (child == 0) ::execvp(words[0], words);
    if (child <= 0) {
        const int error = errno;
        [[maybe_unused]] const auto ignored = ::write(report, &error, sizeof error);
    }
    ::_exit(0);
}

/// 0, or the system's error number.
int StartDetached(char* const* words) {
    std::array<int, 2> report;
    if (::pipe2(report.data(), O_CLOEXEC) != 0) return errno;
    const pid_t child = ::fork();
    if (child == 0) RunDetached(words, report[1]);
    int error = child < 0 ? errno : 0;
    ::close(report[1]);
    if (child > 0) {
        ::waitpid(child, nullptr, 0);
        // The pipe ends without a word when the program has taken over.
        if (::read(report[0], &error, sizeof error) != sizeof error) error = 0;
    }
    ::close(report[0]);
    return error;
}

}  // namespace

fs::path SystemShell::FolderOf(SpecialFolder folder) {
    const fs::path home = FromEnvironment("HOME");
    if (folder == SpecialFolder::LocalApplication) {
        if (const fs::path data = FromEnvironment("XDG_DATA_HOME"); !data.empty()) return data;
        if (!home.empty()) return home / ".local" / "share";
    } else if (folder == SpecialFolder::State) {
        if (const fs::path state = FromEnvironment("XDG_STATE_HOME"); !state.empty()) return state;
        if (!home.empty()) return home / ".local" / "state";
    } else if (!home.empty()) {
        const fs::path documents = DocumentsOfUserDirs(home);
        if (!documents.empty()) return documents;
        const fs::path usual = home / "Documents";
        return fs::is_directory(usual) ? usual : home;
    }
    throw MachineError("The folder path could not be detected");
}

void SystemShell::Open(const std::string& fileOrAddress) {
    Start("xdg-open", {fileOrAddress});
}

void SystemShell::Start(const fs::path& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> texts = {program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> words;
    for (std::string& text : texts) words.push_back(text.data());
    words.push_back(nullptr);
    if (const int error = StartDetached(words.data()); error != 0) {
        throw MachineError("cannot start " + TextOf(program) + ": " + std::generic_category().message(error));
    }
}

void SystemShell::ShowInFolder(const fs::path& file) {
    Shell::ShowInFolder(file);
}

bool SystemShell::CanMailFiles() {
    return IsOnPath("xdg-email");
}

void SystemShell::MailFile(const std::string& subject, const fs::path& file) {
    Start("xdg-email", {"--utf8", "--subject", subject, "--attach", file.string()});
}

bool SystemShell::CanPrintFiles() {
    return IsOnPath("soffice");
}

void SystemShell::PrintFile(const fs::path& file, const std::string& printer) {
    Start("soffice", {"--headless", "--pt", printer, file.string()});
}

}  // namespace quillmark

#endif
