# Part of `cmake --install`: updates the desktop's databases of file types and icons. If a package is built
# (DESTDIR), the package manager does that when the package is installed.
function(tell PROGRAM FOLDER)
  cmake_path(ABSOLUTE_PATH FOLDER BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
  find_program(${PROGRAM}_PATH ${PROGRAM})
  if(${PROGRAM}_PATH)
    execute_process(COMMAND ${${PROGRAM}_PATH} ${ARGN} ${FOLDER})
  endif()
endfunction()

if("$ENV{DESTDIR}" STREQUAL "")
  tell(update-mime-database ${DATA_FOLDER}/mime)
  tell(update-desktop-database ${DATA_FOLDER}/applications)
  # A cache hides icons that are newer than it.
  if(EXISTS ${CMAKE_INSTALL_PREFIX}/${DATA_FOLDER}/icons/hicolor/icon-theme.cache)
    tell(gtk-update-icon-cache ${DATA_FOLDER}/icons/hicolor --quiet --force)
  endif()
endif()
