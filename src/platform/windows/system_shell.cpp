#ifdef _WIN32

#include <windows.h>
// The shell's headers need the one above.
#include <shellapi.h>
#include <shlobj.h>

#include <system_error>

#include "platform/machine.h"
#include "platform/paths.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

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

void Execute(const std::wstring& what, const std::wstring& arguments, const wchar_t* verb = nullptr) {
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_FLAG_NO_UI;
    info.lpVerb = verb;
    info.lpFile = what.c_str();
    info.lpParameters = arguments.empty() ? nullptr : arguments.c_str();
    info.nShow = SW_SHOWNORMAL;
    if (ShellExecuteExW(&info)) return;
    const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
    throw MachineError("cannot start " + TextOf(what) + ": " + error.message());
}

}  // namespace

fs::path SystemShell::FolderOf(SpecialFolder folder) {
    const int id = folder == SpecialFolder::Documents ? CSIDL_PERSONAL : CSIDL_LOCAL_APPDATA;
    wchar_t path[MAX_PATH];
    if (SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path) != S_OK) {
        throw MachineError("The folder path could not be detected");
    }
    return path;
}

void SystemShell::Open(const std::string& fileOrAddress) {
    Execute(PathOf(fileOrAddress).wstring(), {});
}

void SystemShell::Start(const fs::path& program, const std::vector<std::string>& arguments) {
    std::wstring line;
    for (const std::string& argument : arguments) {
        line += (line.empty() ? L"" : L" ") + Quoted(PathOf(argument).wstring());
    }
    Execute(program.wstring(), line);
}

void SystemShell::ShowInFolder(const fs::path& file) {
    Execute(L"explorer.exe", L"/select,\"" + file.wstring() + L"\"");
}

/// A mail link, which is all that every mail program here takes, carries no file.
bool SystemShell::CanMailFiles() {
    return false;
}

void SystemShell::MailFile(const std::string& subject, const fs::path& file) {
    Shell::MailFile(subject, file);
}

bool SystemShell::CanPrintFiles() {
    return true;
}

void SystemShell::PrintFile(const fs::path& file, const std::string& printer) {
    Execute(file.wstring(), Quoted(PathOf(printer).wstring()), L"printto");
}

}  // namespace quillmark

#endif
