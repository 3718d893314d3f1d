#pragma once

#ifdef _WIN32

#include "word/seam/clipboard.h"

namespace quillmark::word {

/// The clipboard of Windows, which Word pastes from. A picture is offered in the format that its bytes are
/// in, without its description, for which the clipboard has no place. Throws AutomationError
/// kPermissionDenied when another program does not let go of the clipboard for a second, kBadValue for bytes
/// that are no PNG, JPEG or BMP file.
class SystemClipboard final : public Clipboard {
 public:
    void SetText(std::string_view text) override;
    void SetPicture(std::string bytes, std::string description) override;
    void Clear() override;
};

}  // namespace quillmark::word

#endif
