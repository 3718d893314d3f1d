#ifndef _WIN32

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <thread>

#include "platform/paths.h"
#include "production/pdf/pdf_program.h"

extern char** environ;

namespace quillmark {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(int error, const std::string& what) {
    throw std::system_error(error, std::generic_category(), what);
}

/// What the new process gets: no input, no output, a group of its own that can be ended as a whole.
class SpawnSettings {
 public:
    SpawnSettings() {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
        posix_spawnattr_setpgroup(&attributes, 0);
    }
    ~SpawnSettings() {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
};

pid_t Spawn(const fs::path& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const SpawnSettings settings;
    pid_t process = 0;
    const int error = posix_spawn(&process, program.c_str(), &settings.files, &settings.attributes,
                                  pointers.data(), environ);
    if (error) Fail(error, program.string());
    return process;
}

ProgramEnd EndOf(int status) {
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? ProgramEnd::Done : ProgramEnd::Failed;
}

bool IsProgram(const fs::path& file) {
    std::error_code ignored;
    return file.is_absolute() && fs::is_regular_file(file, ignored) && access(file.c_str(), X_OK) == 0;
}

}  // namespace

std::optional<fs::path> FindProgram(const std::vector<std::string>& names) {
    const char* variable = std::getenv("PATH");
    const std::string_view path = variable ? variable : "/usr/bin:/bin";
    for (const std::string& name : names) {
        for (std::size_t begin = 0; begin <= path.size();) {
            const std::size_t end = std::min(path.find(':', begin), path.size());
            const fs::path program = fs::path(path.substr(begin, end - begin)) / name;
            if (IsProgram(program)) return program;
            begin = end + 1;
        }
    }
    return {};
}

ProgramEnd RunProgram(const fs::path& program, const std::vector<std::string>& arguments,
                      std::chrono::seconds limit) {
    const pid_t process = Spawn(program, arguments);
    const auto end = std::chrono::steady_clock::now() + limit;
    int status = 0;
    for (;;) {
        const pid_t done = waitpid(process, &status, WNOHANG);
        if (done == process) return EndOf(status);
        if (done < 0 && errno != EINTR) Fail(errno, program.string());
        if (std::chrono::steady_clock::now() >= end) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    kill(-process, SIGKILL);
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return ProgramEnd::TimedOut;
}

fs::path MakePrivateFolder() {
    std::string name = (fs::temp_directory_path() / "quillmark-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw fs::filesystem_error("cannot make a folder", name,
                                   std::error_code(errno, std::generic_category()));
    return name;
}

std::string FileAddress(const fs::path& path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/-._~";
    std::string address = "file://";
    for (const char c : path.string()) {
        if (kPlain.find(c) != kPlain.npos) {
            address += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            address.append({'%', kDigits[byte >> 4], kDigits[byte & 15]});
        }
    }
    return address;
}

}  // namespace quillmark

#endif
