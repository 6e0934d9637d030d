# Part of `cmake --install`: updates the desktop's database of file types. If a package is built
# (DESTDIR), the package manager does that when the package is installed.
function(tell PROGRAM FOLDER)
  cmake_path(ABSOLUTE_PATH FOLDER BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
  find_program(${PROGRAM}_PATH ${PROGRAM})
  if(${PROGRAM}_PATH)
    execute_process(COMMAND ${${PROGRAM}_PATH} ${FOLDER})
  endif()
endfunction()

if("$ENV{DESTDIR}" STREQUAL "")
  tell(update-mime-database ${DATA_FOLDER}/mime)
  tell(update-desktop-database ${DATA_FOLDER}/applications)
endif()
