#include "word/com/com_watch.h"

#ifdef _WIN32

#include <objbase.h>
#include <tlhelp32.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

namespace quillmark::word {
namespace {

/// The command line that the system starts for this class; empty for one that lives in a library.
std::wstring CommandOf(const CLSID& server) {
    std::array<wchar_t, 40> id = {};
    StringFromGUID2(server, id.data(), static_cast<int>(id.size()));
    const std::wstring key = L"CLSID\\" + std::wstring(id.data()) + L"\\LocalServer32";
    std::array<wchar_t, 1024> command = {};
    DWORD size = sizeof command;
    const LONG result =
        RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, command.data(), &size);
    return result == ERROR_SUCCESS ? std::wstring(command.data()) : std::wstring();
}

/// "WINWORD.EXE" of `"C:\Program Files\...\WINWORD.EXE" /Automation`, quoted or not.
std::wstring ProgramIn(const std::wstring& command) {
    std::wstring program = command;
    if (program.starts_with(L'"')) {
        program = program.substr(1, program.find(L'"', 1) - 1);
    } else if (const auto options = program.find(L" /"); options != std::wstring::npos) {
        program.resize(options);
    }
    return std::filesystem::path(program).filename().wstring();
}

}  // namespace

std::set<DWORD> ProcessesOf(const CLSID& server) {
    std::set<DWORD> found;
    const std::wstring program = ProgramIn(CommandOf(server));
    const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (program.empty() || all == INVALID_HANDLE_VALUE) return found;
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(all, &entry); more; more = Process32NextW(all, &entry)) {
        if (lstrcmpiW(entry.szExeFile, program.c_str()) == 0) found.insert(entry.th32ProcessID);
    }
    CloseHandle(all);
    return found;
}

ServerWatch::ServerWatch(const std::set<DWORD>& former, const std::set<DWORD>& present,
                         std::chrono::milliseconds longestCall)
    : longestCall_(longestCall) {
    std::vector<DWORD> started;
    std::ranges::set_difference(present, former, std::back_inserter(started));
    if (started.size() != 1) return;
    process_.reset(OpenProcess(PROCESS_TERMINATE, FALSE, started.front()));
    if (process_) watcher_ = std::thread([this] { Watch(); });
}

ServerWatch::~ServerWatch() {
    {
        const std::lock_guard lock(guard_);
        isEnding_ = true;
    }
    ended_.notify_all();
    if (watcher_.joinable()) watcher_.join();
}

std::int64_t ServerWatch::Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

void ServerWatch::Watch() {
    std::unique_lock lock(guard_);
    while (!ended_.wait_for(lock, longestCall_ / 8, [this] { return isEnding_; })) {
        const std::int64_t began = began_;
        if (isOwn_ && began != 0 && Now() - began > longestCall_.count()) {
            TerminateProcess(process_.get(), 1);
            return;
        }
    }
}

}  // namespace quillmark::word

#endif
