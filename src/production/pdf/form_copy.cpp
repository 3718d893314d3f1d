#include "production/pdf/form_copy.h"

#include <algorithm>
#include <fstream>

#include "core/custom_forms.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kOlderKinds[] = {".doc", ".dot", ".rtf", ".odt", ".ott", ".wpd", ".wps"};

/// The newer formats are zip files.
bool IsZip(const fs::path& file) {
    char head[2] = {};
    std::ifstream(file, std::ios::binary).read(head, sizeof head);
    return head[0] == 'P' && head[1] == 'K';
}

bool IsOpenDocument(std::string_view extension) {
    return extension == ".odt" || extension == ".ott";
}

}  // namespace

bool NeedsConversion(const fs::path& form) {
    const std::string extension = FormExtension(TextOf(form.filename()));
    if (std::ranges::find(kOlderKinds, extension) == std::end(kOlderKinds)) return false;
    return IsOpenDocument(extension) || !IsZip(form);
}

std::string HowToConvert(const fs::path& form) {
    return TextOf(form.filename()) +
           " is no .docx file, and LibreOffice, which could make one of it, is not installed.\nOpen it in your "
           "word processor, save it as a Word document (.docx), and use that.";
}

ReadableForm::ReadableForm(const fs::path& form, bool forEmbedded) : path_(form) {
    if (!forEmbedded || !NeedsConversion(form)) return;
    if (!LibreOffice::IsInstalled()) throw OfficeError(HowToConvert(form));
    office_ = std::make_unique<LibreOffice>("A form of this kind");
    path_ = office_->Make("docx", form);
}

}  // namespace quillmark
