# The one place for the language level, the warnings and the sanitizers. Every target of the project links
# tarnwick_options, directly or through tarnwick_library().

add_library(tarnwick_options INTERFACE)
target_compile_features(tarnwick_options INTERFACE cxx_std_20)
target_compile_options(tarnwick_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror
  -Wshadow -Wconversion -Wno-sign-conversion -Wold-style-cast -Wcast-align -Wcast-qual -Wnon-virtual-dtor
  -Woverloaded-virtual -Wformat=2 -Wimplicit-fallthrough -Wdouble-promotion -Wextra-semi)
target_compile_definitions(tarnwick_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# What is shipped checks its buffers and its stack, binds its symbols at the start, after which their tables cannot be
# written to, and is the same in whatever folder it was built.
target_compile_options(tarnwick_options INTERFACE "$<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2;-fstack-protector-strong>"
  "$<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")
target_link_options(tarnwick_options INTERFACE "$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")

if(TARNWICK_SANITIZE)
  target_compile_options(tarnwick_options INTERFACE
    -fsanitize=${TARNWICK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarnwick_options INTERFACE -fsanitize=${TARNWICK_SANITIZE})
endif()
if(TARNWICK_FUZZ)
  # Coverage for every library; the fuzz targets themselves add the driver.
  target_compile_options(tarnwick_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(TARNWICK_CCACHE ccache)

# With precompiled headers the compiler cache stores a result only when it is told what not to look at. It knows a large
# file again by its date, and takes what a source includes from the compiler instead of preprocessing it first.
if(TARNWICK_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_INODECACHE=1 CCACHE_DEPEND=1 ${TARNWICK_CCACHE})
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(TARNWICK_PCH_OPTIONS -Xclang -fno-pch-timestamp)
else()
  set(TARNWICK_PCH_OPTIONS -fpch-preprocess)
endif()
target_compile_options(tarnwick_options INTERFACE ${TARNWICK_PCH_OPTIONS})

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# tarnwick_library(NAME source... [WINDOWS] LINKS library...) makes one folder's library. LINKS names the folders that it
# may include from. All folders share one include path, so a wrong include compiles: tests/architecture finds it.
# WINDOWS: it has widgets of its own.
function(tarnwick_library name)
  cmake_parse_arguments(ARG "WINDOWS" "" "LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_UNPARSED_ARGUMENTS})
  if(ARG_WINDOWS)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_precompile_headers(${name} REUSE_FROM tarnwick_pch_widgets)
  else()
    target_precompile_headers(${name} REUSE_FROM tarnwick_pch_core)
  endif()
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC tarnwick_options ${ARG_LINKS})
endfunction()
