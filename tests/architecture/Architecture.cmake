# cmake -D ROOT=<project> -P Architecture.cmake
#
# Fails when a source file reaches past its module: an include that climbs out of the folder, a header of a module
# that the module's CMakeLists.txt does not name under USES (the linker may have it through others), or anything of
# the recipe book inside src/platform.
cmake_minimum_required(VERSION 3.25)

set(faults "")

file(GLOB_RECURSE sources RELATIVE ${ROOT} ${ROOT}/src/*.h ${ROOT}/src/*.cpp ${ROOT}/tools/*.h ${ROOT}/tools/*.cpp
     ${ROOT}/tests/*.h ${ROOT}/tests/*.cpp ${ROOT}/bench/*.h ${ROOT}/bench/*.cpp)
if(NOT sources)
  message(FATAL_ERROR "no sources under ${ROOT}")
endif()

foreach(source IN LISTS sources)
  file(STRINGS ${ROOT}/${source} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[\"<]")
  cmake_path(GET source PARENT_PATH folder)

  set(used "")
  if(EXISTS ${ROOT}/${folder}/CMakeLists.txt)
    file(READ ${ROOT}/${folder}/CMakeLists.txt declaration)
    if(declaration MATCHES "USES([a-z_ \t\r\n]*)")
      string(REGEX MATCHALL "[a-z_]+" used "${CMAKE_MATCH_1}")
    endif()
  endif()

  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^[^\"<]*[\"<]([^\">]*)[\">].*" "\\1" header "${include}")
    if(header MATCHES "^\\.\\./|/\\.\\./")
      list(APPEND faults "${source} includes \"${header}\": a path out of its folder")
    endif()
    # The program itself and the tools stand above all modules.
    if(NOT header MATCHES "^(platform|store|pictures|browser|entry|webimport|sheets|search|shell)/"
       OR NOT folder MATCHES "^src/")
      continue()
    endif()
    if(folder MATCHES "^src/platform/" AND NOT header MATCHES "^platform/")
      list(APPEND faults "${source} includes \"${header}\": the platform knows nothing of recipes")
    endif()
    cmake_path(GET header PARENT_PATH module)
    string(REPLACE "/" "_" module "${module}")
    if(NOT "src/${module}" STREQUAL folder AND NOT module IN_LIST used)
      list(APPEND faults "${source} includes \"${header}\": ${module} is not among its USES")
    endif()
  endforeach()
endforeach()

if(faults)
  list(JOIN faults "\n  " text)
  message(FATAL_ERROR "Forbidden includes:\n  ${text}")
endif()
list(LENGTH sources count)
message(STATUS "${count} files include only what they may")
