#pragma once

#include <QString>

#include "core/text_conversions.h"

/// Between an editor's text in the toolkit, counted in UTF-16 units, and in the session, counted in bytes.
namespace quillmark::desktop {

struct ShownText {
    QString text;
    int caret = 0;      ///< where the selection begins
    int selection = 0;  ///< how many units are selected

    bool operator==(const ShownText&) const = default;
};

EditorText ToSession(const ShownText& shown);
ShownText FromSession(const EditorText& editor);

}  // namespace quillmark::desktop
