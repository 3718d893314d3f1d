#pragma once

#include <windows.h>

#include <filesystem>
#include <stdexcept>
#include <string>

/// The server of the tests, as the system's registry knows it.
namespace quillmark::test {

inline constexpr const wchar_t* kWordServerClass = L"{6B8B2A5C-2E6E-4A5A-9C1D-3F0E5B7A9D41}";

/// Word's class name stands for the server of the tests as long as this lives. On a machine with Word it
/// stays Word's: `isThere` is false then. `server` is the program.
class RegisteredWord {
 public:
    explicit RegisteredWord(const std::filesystem::path& server) {
        if (HKEY key; RegOpenKeyExW(HKEY_CLASSES_ROOT, kName, 0, KEY_READ, &key) == ERROR_SUCCESS) {
            RegCloseKey(key);
            return;
        }
        // Where the system looks for names, not where the user could keep them: wine finds none of those.
        Set(std::wstring(kClasses) + kName + L"\\CLSID", kWordServerClass);
        const std::filesystem::path program = std::filesystem::absolute(server);
        Set(std::wstring(kClasses) + L"CLSID\\" + kWordServerClass + L"\\LocalServer32", program.wstring());
        isThere = true;
    }
    ~RegisteredWord() {
        if (!isThere) return;
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kClasses) + kName).c_str());
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kClasses) + L"CLSID\\" + kWordServerClass).c_str());
    }
    RegisteredWord(const RegisteredWord&) = delete;
    RegisteredWord& operator=(const RegisteredWord&) = delete;

    bool isThere = false;

 private:
    static constexpr const wchar_t* kClasses = L"Software\\Classes\\";
    static constexpr const wchar_t* kName = L"Word.Application";

    static void Set(const std::wstring& key, const std::wstring& value) {
        const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
        if (RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, value.c_str(), size) !=
            ERROR_SUCCESS)
            throw std::runtime_error("the registry takes no class");
    }
};

}  // namespace quillmark::test
