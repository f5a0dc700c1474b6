# Run at build time with -DCMARK=program -DFROM=docs -DTO=folder: makes HTML of the user guide and of the pages that it
# refers to, all in one folder, so that a browser shows it without a network.

set(style [[
body { max-width: 46rem; margin: 2rem auto 4rem; padding: 0 1.25rem; background: #fff; color: #1f2533;
       font: 1rem/1.55 "Liberation Sans", "DejaVu Sans", sans-serif; }
h1 { font-size: 1.8rem; line-height: 1.2; }
h2 { margin-top: 2.2rem; padding-top: 0.8rem; border-top: 1px solid #dce0e8; font-size: 1.25rem; }
a { color: #2e549e; }
img { max-width: 100%; border: 1px solid #dce0e8; border-radius: 4px; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: 0.4rem 0.6rem; border-bottom: 1px solid #dce0e8; text-align: left; vertical-align: top; }
th { background: #ebeef4; }
code { font-family: "Liberation Mono", "DejaVu Sans Mono", monospace; font-size: 0.92em; }
pre { padding: 0.8rem; overflow-x: auto; background: #f4f5f8; border-radius: 4px; }
nav { margin-bottom: 1.5rem; }
@media (prefers-color-scheme: dark) {
  body { background: #1d212a; color: #e7eaf1; }
  a { color: #9ab8f2; }
  h2, img, th, td { border-color: #363d4b; }
  th { background: #2a303c; }
  pre { background: #15181f; }
}
]])

file(GLOB pages "${FROM}/guide/*.md")
foreach(page template-language page-variables import-file)
  list(APPEND pages "${FROM}/${page}.md")
endforeach()

file(MAKE_DIRECTORY "${TO}")
file(WRITE "${TO}/guide.css" "${style}")
foreach(page IN LISTS pages)
  execute_process(COMMAND "${CMARK}" -e table "${page}" OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
  get_filename_component(name "${page}" NAME_WE)
  # All pages lie side by side, and the first one is what a browser opens in a folder.
  string(REGEX REPLACE "href=\"(\\.\\./)?([A-Za-z-]+)\\.md" "href=\"\\2.html" body "${body}")
  string(REPLACE "href=\"README.html" "href=\"index.html" body "${body}")
  set(home "<nav><a href=\"index.html\">Contents</a></nav>\n")
  if(name STREQUAL "README")
    set(name index)
    set(home "")
  endif()
  string(REGEX MATCH "<h1>([^<]*)" heading "${body}")
  file(WRITE "${TO}/${name}.html" "<!DOCTYPE html>
<html lang=\"en\">
<head>
<meta charset=\"utf-8\">
<meta name=\"viewport\" content=\"width=device-width\">
<title>${CMAKE_MATCH_1}</title>
<link rel=\"stylesheet\" href=\"guide.css\">
</head>
<body>
${home}${body}</body>
</html>
")
endforeach()
file(COPY "${FROM}/guide/pictures" DESTINATION "${TO}")
