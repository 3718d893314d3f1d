#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

QString Shown(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string Utf8(const QString& text) {
    return text.toStdString();
}

}  // namespace quillmark::desktop
