# Delivers files into the program folder without ever overwriting what the user has changed there.
#
#   cmake -D SOURCE=<pristine folder> -D DESTINATION=<program folder> -D STAMPS=<folder> -P Livraison.cmake
#
# A file is delivered when the program folder lacks it or holds it just as it was last delivered. STAMPS keeps the
# SHA-256 of each file at that time; without a stamp, a file that differs counts as the user's. So does a book beside
# which a journal lies: a program that was killed left it, and it belongs to the pages that are there now.
cmake_minimum_required(VERSION 3.25)

function(deliver file)
  set(source ${SOURCE}/${file})
  set(destination ${DESTINATION}/${file})
  set(stamp ${STAMPS}/${file}.sha256)

  file(SHA256 ${source} new)
  if(EXISTS ${destination})
    file(SHA256 ${destination} present)
    set(last "")
    if(EXISTS ${stamp})
      file(READ ${stamp} last)
    endif()
    if(NOT present STREQUAL new)
      if(NOT present STREQUAL last OR EXISTS ${destination}-journal)
        message(STATUS "Gardé tel quel, modifié depuis sa livraison : ${destination}")
        return()
      endif()
    elseif(last STREQUAL new)
      return()
    endif()
  endif()

  # Renamed when complete: a copy broken off would count as the user's.
  get_filename_component(folder ${destination} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  file(COPY_FILE ${source} ${destination}.livraison)
  file(RENAME ${destination}.livraison ${destination})
  file(WRITE ${stamp} ${new})
endfunction()

file(GLOB_RECURSE files RELATIVE ${SOURCE} ${SOURCE}/*)
foreach(file IN LISTS files)
  deliver("${file}")
endforeach()
