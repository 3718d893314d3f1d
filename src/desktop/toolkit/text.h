#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quillmark::desktop {

/// The system's texts are UTF-8; the toolkit has its own.
QString Shown(std::string_view utf8);
std::string Utf8(const QString& text);

}  // namespace quillmark::desktop
