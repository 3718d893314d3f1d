#include "word/com/com_clipboard.h"

#ifdef _WIN32

#include <windows.h>

#include <cstring>

#include "word/com/com_text.h"
#include "word/seam/automation.h"

namespace quillmark::word {
namespace {

using namespace std::string_view_literals;

/// The clipboard, held open and emptied.
class OpenedClipboard {
 public:
    OpenedClipboard() {
        for (int attempt = 0; !OpenClipboard(nullptr); ++attempt) {
            if (attempt == 20) throw AutomationError(error::kPermissionDenied, "The clipboard is in use");
            Sleep(50);
        }
        EmptyClipboard();
    }
    ~OpenedClipboard() { CloseClipboard(); }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    /// What the clipboard took is its own from then on.
    void Set(UINT format, const void* bytes, std::size_t size) {
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
        void* const target = memory ? GlobalLock(memory) : nullptr;
        if (!target) throw AutomationError(error::kPermissionDenied, "No memory for the clipboard");
        std::memcpy(target, bytes, size);
        GlobalUnlock(memory);
        if (SetClipboardData(format, memory)) return;
        GlobalFree(memory);
        throw AutomationError(error::kPermissionDenied, "The clipboard does not take the contents");
    }
};

std::wstring WithWindowsLineEnds(std::string_view text) {
    std::string ended;
    for (const char c : text) {
        ended += c;
        if (c == '\r') ended += '\n';
    }
    return ToWide(ended);
}

}  // namespace

void SystemClipboard::SetText(std::string_view text) {
    const std::wstring wide = WithWindowsLineEnds(text);
    OpenedClipboard().Set(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

void SystemClipboard::SetPicture(std::string bytes, std::string) {
    const std::string_view view = bytes;
    std::string_view contents = view;
    UINT format = 0;
    if (view.starts_with("\x89PNG"sv)) format = RegisterClipboardFormatW(L"PNG");
    if (view.starts_with("\xff\xd8\xff"sv)) format = RegisterClipboardFormatW(L"JFIF");
    if (view.starts_with("BM"sv) && view.size() > sizeof(BITMAPFILEHEADER)) {
        format = CF_DIB;
        contents.remove_prefix(sizeof(BITMAPFILEHEADER));
    }
    if (format == 0) throw AutomationError(error::kBadValue, "The picture is no PNG, JPEG or BMP file");
    OpenedClipboard().Set(format, contents.data(), contents.size());
}

void SystemClipboard::Clear() {
    OpenedClipboard();
}

}  // namespace quillmark::word

#endif
