# Turns the guide's Markdown pages into web pages: cmake -D CMARK_GFM=... -D OUT=... -D PAGES=... -P GuideHtml.cmake
set(style "body{font:16px/1.5 sans-serif;max-width:46em;margin:2em auto;padding:0 1em;color:#222;background:#fff}
h1,h2{color:#1d4668}a{color:#1d5f8f}img{max-width:100%;border:1px solid #ccc}
table{border-collapse:collapse}th,td{border:1px solid #ccc;padding:.3em .6em;text-align:left;vertical-align:top}
code{background:#f1efe9;padding:0 .2em}pre{background:#f1efe9;padding:.6em;overflow:auto}
@media(prefers-color-scheme:dark){body{color:#ddd;background:#1e1e20}h1,h2,a{color:#8fc1e0}
code,pre{background:#2c2c30}img,th,td{border-color:#555}}")

# A heading's place in the page is its text in lower case, words joined by hyphens.
function(with_anchors html out)
  string(REGEX MATCHALL "<h[1-6]>[^<]*</h[1-6]>" headings "${html}")
  foreach(heading IN LISTS headings)
    string(REGEX REPLACE "<h([1-6])>([^<]*)</h[1-6]>" "\\1;\\2" parts "${heading}")
    list(GET parts 0 level)
    list(GET parts 1 text)
    string(TOLOWER "${text}" anchor)
    string(REGEX REPLACE "[^a-z0-9 -]" "" anchor "${anchor}")
    string(REPLACE " " "-" anchor "${anchor}")
    string(REPLACE "${heading}" "<h${level} id=\"${anchor}\">${text}</h${level}>" html "${html}")
  endforeach()
  set(${out} "${html}" PARENT_SCOPE)
endfunction()

file(MAKE_DIRECTORY ${OUT})
foreach(page IN LISTS PAGES)
  execute_process(COMMAND ${CMARK_GFM} --extension table ${page} OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
  file(STRINGS ${page} title LIMIT_COUNT 1)
  string(REGEX REPLACE "^# +" "" title "${title}")
  string(REGEX REPLACE "href=\"([a-z0-9-]+)\\.md" "href=\"\\1.html" body "${body}")
  with_anchors("${body}" body)
  get_filename_component(name ${page} NAME_WE)
  file(WRITE ${OUT}/${name}.html
       "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>${title} - Quillmark</title>\n"
       "<style>${style}</style>\n</head>\n<body>\n${body}</body>\n</html>\n")
endforeach()
