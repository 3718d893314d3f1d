#ifdef _WIN32

#include "platform/drives.h"

#include <windows.h>

namespace quillmark {
namespace {

/// The letter of the disk that the system runs from.
char SystemDrive() {
    wchar_t folder[MAX_PATH] = {};
    return GetWindowsDirectoryW(folder, MAX_PATH) ? static_cast<char>(folder[0]) : 'C';
}

bool CanBeCarriedAway(const std::wstring& root, char letter) {
    switch (GetDriveTypeW(root.c_str())) {
        case DRIVE_REMOVABLE:
        case DRIVE_REMOTE:
            return true;
        case DRIVE_FIXED:
            return letter != SystemDrive();
        default:
            return false;
    }
}

}  // namespace

std::vector<Drive> MountedDrives() {
    // A drive without a medium is no reason for the system's own box.
    SetErrorMode(SetErrorMode(0) | SEM_FAILCRITICALERRORS);
    std::vector<Drive> drives;
    const DWORD letters = GetLogicalDrives();
    for (int n = 0; n < 26; ++n) {
        const char letter = static_cast<char>('A' + n);
        const std::wstring root = {static_cast<wchar_t>(letter), L':', L'\\'};
        if ((letters >> n & 1u) && CanBeCarriedAway(root, letter))
            drives.push_back({std::string{letter, ':'}, root});
    }
    return drives;
}

}  // namespace quillmark

#endif
