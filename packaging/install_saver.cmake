# Part of `cmake --install`: installs the saver for hosts that only start programs in their own
# folder, and the desktop entry by which MATE and Xfce find it there.
foreach(FOLDER PROGRAM_FOLDER SAVER_FOLDER DESKTOP_FILE_FOLDER)
  cmake_path(ABSOLUTE_PATH ${FOLDER} BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
  file(MAKE_DIRECTORY $ENV{DESTDIR}${${FOLDER}})
endforeach()

# A relative link stays valid if the whole tree is moved.
cmake_path(RELATIVE_PATH PROGRAM_FOLDER BASE_DIRECTORY ${SAVER_FOLDER} OUTPUT_VARIABLE WAY)
set(LINK ${SAVER_FOLDER}/starfolds)
message(STATUS "Installing: $ENV{DESTDIR}${LINK}")
file(CREATE_LINK ${WAY}/starfolds $ENV{DESTDIR}${LINK} SYMBOLIC)

set(DESKTOP_FILE ${DESKTOP_FILE_FOLDER}/starfolds.desktop)
message(STATUS "Installing: $ENV{DESTDIR}${DESKTOP_FILE}")
configure_file(${DESKTOP_FILE_TEMPLATE} $ENV{DESTDIR}${DESKTOP_FILE} @ONLY)

list(APPEND CMAKE_INSTALL_MANIFEST_FILES ${LINK} ${DESKTOP_FILE})
