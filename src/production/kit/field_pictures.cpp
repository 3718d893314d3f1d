#include "production/kit/field_pictures.h"

#include <cctype>

#include "word/docx/objects/picture_size.h"
#include "word/seam/automation.h"

namespace quillmark {

std::string FaultOfPicture(std::string_view bytes) {
    if (bytes.empty()) return "its file is missing";
    try {
        word::docx::objects::ReadPictureSize(bytes);
        return {};
    } catch (const word::AutomationError& refusal) {
        std::string fault = refusal.what();
        if (fault.ends_with('.')) fault.pop_back();
        fault.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(fault.front())));
        return fault;
    }
}

std::string DescriptionOfPicture(const JobValues& job) {
    const bool isKnown = job.IsFilled(field::PropertyAddress1) && job.IsFilled(field::PropertyCityStateZip);
    return "Legal description of " + (isKnown ? job.Property() : "the premises");
}

}  // namespace quillmark
