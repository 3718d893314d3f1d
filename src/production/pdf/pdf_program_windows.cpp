#ifdef _WIN32

#include <windows.h>

#include <array>
#include <string>
#include <system_error>

#include "platform/paths.h"
#include "platform/temporary_name.h"
#include "production/pdf/pdf_program.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const std::string& what) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

/// `word` as one argument of a command line.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"') quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring CommandLine(const fs::path& program, const std::vector<std::string>& arguments) {
    std::wstring line = Quoted(program.wstring());
    for (const std::string& argument : arguments) line += L" " + Quoted(PathOf(argument).wstring());
    return line;
}

/// A job that ends all of its processes with itself.
HANDLE MakeProcessGroup(const std::string& what) {
    HANDLE group = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    if (!group || !SetInformationJobObject(group, JobObjectExtendedLimitInformation, &limits, sizeof limits))
        Fail(what);
    return group;
}

std::optional<fs::path> OnThePath(const std::wstring& name) {
    std::array<wchar_t, MAX_PATH> found = {};
    const DWORD length = SearchPathW(nullptr, name.c_str(), L".exe", MAX_PATH, found.data(), nullptr);
    if (length == 0 || length >= MAX_PATH) return {};
    return fs::path(found.data());
}

/// Where setups tell the system of their program, for this user or for all: few put it on the path.
std::optional<fs::path> AsInstalled(const std::wstring& name) {
    const std::wstring key = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + name + L".exe";
    for (const HKEY whose : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        std::array<wchar_t, 1024> value = {};
        DWORD size = sizeof value;
        if (RegGetValueW(whose, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(), &size) !=
            ERROR_SUCCESS)
            continue;
        std::wstring program = value.data();
        std::erase(program, L'"');
        std::error_code unreachable;
        if (fs::exists(program, unreachable)) return fs::path(program);
    }
    return {};
}

}  // namespace

std::optional<fs::path> FindProgram(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        if (auto found = OnThePath(PathOf(name).wstring())) return found;
        if (auto found = AsInstalled(PathOf(name).wstring())) return found;
    }
    return {};
}

ProgramEnd RunProgram(const fs::path& program, const std::vector<std::string>& arguments,
                      std::chrono::seconds limit) {
    const HANDLE group = MakeProcessGroup(TextOf(program));
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    std::wstring line = CommandLine(program, arguments);
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE,
                        CREATE_NO_WINDOW | CREATE_SUSPENDED, nullptr, nullptr, &start, &process)) {
        CloseHandle(group);
        Fail(TextOf(program));
    }
    AssignProcessToJobObject(group, process.hProcess);
    ResumeThread(process.hThread);
    const auto milliseconds = std::chrono::milliseconds(limit).count();
    const bool ended =
        WaitForSingleObject(process.hProcess, static_cast<DWORD>(milliseconds)) == WAIT_OBJECT_0;
    DWORD status = 1;
    if (ended) GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    CloseHandle(group);
    if (!ended) return ProgramEnd::TimedOut;
    return status == 0 ? ProgramEnd::Done : ProgramEnd::Failed;
}

fs::path MakePrivateFolder() {
    const fs::path folder = fs::temp_directory_path() / TemporaryName();
    fs::create_directory(folder);
    return folder;
}

std::string FileAddress(const fs::path& path) {
    std::string address = "file:///";
    for (const char c : TextOf(path)) {
        if (c == ' ') {
            address += "%20";
        } else {
            address += c == '\\' ? '/' : c;
        }
    }
    return address;
}

}  // namespace quillmark

#endif
