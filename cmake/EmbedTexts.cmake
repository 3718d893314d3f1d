# cmake -D ROOT=dir -D "FILES=a.txt;b.txt" -D OUT=file.cpp -P EmbedTexts.cmake
# Writes the texts of documents as they stand into a source file that defines TextSources().
set(entries "")
foreach(name IN LISTS FILES)
  file(READ ${ROOT}/${name} text)
  string(FIND "${text}" ")DOCTEXT\"" clash)
  if(NOT clash EQUAL -1)
    message(FATAL_ERROR "${name} holds the end mark of an embedded text")
  endif()
  string(APPEND entries "    {R\"DOCTEXT(${name})DOCTEXT\", R\"DOCTEXT(${text})DOCTEXT\"},\n")
endforeach()
file(CONFIGURE OUTPUT ${OUT} @ONLY CONTENT [=[
#include <array>

#include "production/kit/text_document.h"

namespace quillmark {

std::span<const TextSource> TextSources() {
    static constexpr TextSource kSources[] = {
@entries@        {},
    };
    return {kSources, std::size(kSources) - 1};
}

}  // namespace quillmark
]=])
