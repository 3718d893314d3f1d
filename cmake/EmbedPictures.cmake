# Writes a C++ source that holds picture files: cmake -D ROOT=... -D FILES=... -D OUT=... -P EmbedPictures.cmake
# FILES are paths below ROOT.
set(source "#include \"production/kit/pictures.h\"\n\n#include <array>\n\nnamespace quillmark {\n\n")
string(APPEND source "using namespace std::string_view_literals;\n\n")
string(APPEND source "std::span<const PictureSource> PictureSources() {\n    static constexpr auto kPictures = std::to_array<PictureSource>({\n")
foreach(file IN LISTS FILES)
  file(READ ${ROOT}/${file} bytes HEX)
  # 32 bytes a line, each line a literal of its own.
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" bytes "${bytes}")
  string(REPEAT "\\\\x[0-9a-f][0-9a-f]" 32 line)
  string(REGEX REPLACE "(${line})" "\\1\"\n         \"" bytes "${bytes}")
  string(APPEND source "        {\"${file}\",\n         \"${bytes}\"sv},\n")
endforeach()
string(APPEND source "    });\n    return kPictures;\n}\n\n}  // namespace quillmark\n")
file(WRITE ${OUT} "${source}")
