#ifdef _WIN32

#include "platform/fonts.h"

#include <windows.h>

#include <algorithm>

#include "platform/paths.h"

namespace quillmark {

namespace {

int CALLBACK NoteFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM fonts) {
    std::string name = TextOf(std::filesystem::path(font->lfFaceName));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    reinterpret_cast<std::set<std::string>*>(fonts)->insert(std::move(name));
    return 1;
}

}  // namespace

std::set<std::string> InstalledFonts() {
    std::set<std::string> fonts;
    LOGFONTW all = {};
    all.lfCharSet = DEFAULT_CHARSET;
    const HDC screen = GetDC(nullptr);
    EnumFontFamiliesExW(screen, &all, NoteFont, reinterpret_cast<LPARAM>(&fonts), 0);
    ReleaseDC(nullptr, screen);
    return fonts;
}

}  // namespace quillmark

#endif
