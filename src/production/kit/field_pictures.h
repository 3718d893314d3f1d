#pragma once

#include <string>
#include <string_view>

#include "production/kit/job_values.h"

/// Pictures that fields hold in place of a text, such as a drawn or scanned legal description.
namespace quillmark {

/// What is wrong with the bytes of a picture, as words that go on after "but": "its file is missing", "the
/// BMP picture ends too early"; empty for a picture that documents can hold.
std::string FaultOfPicture(std::string_view bytes);
inline bool IsReadablePicture(std::string_view bytes) {
    return FaultOfPicture(bytes).empty();
}

/// What the picture of the premises shows, for those who cannot see it.
std::string DescriptionOfPicture(const JobValues& job);

}  // namespace quillmark
