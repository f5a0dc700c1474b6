# Run at build time with -DFROM=app -DTO=folder -DRECORD=file: copies the files of an installation beside the program. A
# file that was changed there since it was laid out belongs to the owner and is left alone.

cmake_minimum_required(VERSION 3.25) # a script has no policies of its own, IN_LIST among them

file(GLOB_RECURSE files RELATIVE "${FROM}" "${FROM}/*")
set(laid_out "")
if(EXISTS "${RECORD}")
  file(STRINGS "${RECORD}" laid_out)
endif()

set(record "")
foreach(file IN LISTS files)
  file(SHA256 "${FROM}/${file}" new)
  set(target "${TO}/${file}")
  if(EXISTS "${target}")
    file(SHA256 "${target}" present)
    if(NOT "${present} ${file}" IN_LIST laid_out AND NOT present STREQUAL new)
      string(APPEND record "changed ${file}\n")
      continue()
    endif()
  endif()
  get_filename_component(folder "${target}" DIRECTORY)
  file(MAKE_DIRECTORY "${folder}")
  file(COPY_FILE "${FROM}/${file}" "${target}" ONLY_IF_DIFFERENT)
  string(APPEND record "${new} ${file}\n")
endforeach()
file(WRITE "${RECORD}" "${record}")
