# savorel_module(PUBLIC <headers> SOURCES <sources> [USES <modules>] [LIBRARIES <targets>]
#                [PRIVATE_LIBRARIES <targets>])
#
# Declares the library of the current source folder; src/platform/database becomes platform_database. Its only
# include directory holds forwarding headers of the PUBLIC ones, so that others write
# #include "platform/database/Database.h" and reach nothing else. USES names the modules it builds on: they must
# have been declared before, which keeps the dependencies going one way.
function(savorel_module)
  cmake_parse_arguments(M "" "" "PUBLIC;SOURCES;USES;LIBRARIES;PRIVATE_LIBRARIES" ${ARGN})
  if(M_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "savorel_module: unknown arguments ${M_UNPARSED_ARGUMENTS}")
  endif()
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  string(REPLACE "/" "_" module ${folder})

  foreach(used IN LISTS M_USES)
    if(NOT TARGET ${used})
      message(FATAL_ERROR "${module} uses ${used}, which is not declared before it")
    endif()
  endforeach()

  set(include_dir ${PROJECT_BINARY_DIR}/include/${module})
  foreach(header IN LISTS M_PUBLIC)
    file(CONFIGURE OUTPUT ${include_dir}/${folder}/${header}
         CONTENT "#pragma once\n#include \"${CMAKE_CURRENT_SOURCE_DIR}/${header}\"\n")
  endforeach()

  add_library(${module} STATIC ${M_SOURCES} ${M_PUBLIC})
  target_include_directories(${module} PUBLIC ${include_dir})
  target_link_libraries(${module} PUBLIC ${M_USES} ${M_LIBRARIES} PRIVATE ${M_PRIVATE_LIBRARIES})
endfunction()

# savorel_test(<name> <sources> USES <modules> [LIBRARIES <targets>]): a test program run by CTest,
# offscreen. What tests share stands in tests/support.
function(savorel_test name)
  cmake_parse_arguments(T "" "" "USES;LIBRARIES" ${ARGN})
  add_executable(${name} ${T_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE Qt6::Test test_support ${T_USES} ${T_LIBRARIES})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=0")
endfunction()
