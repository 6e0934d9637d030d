# Part of `cmake --install`: installs the saver for hosts that only start programs in their own
# folder, the desktop entry by which MATE and Xfce find it there, and what starts the idle service.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr" AND NOT IS_ABSOLUTE ${AUTOSTART_FOLDER})
  set(AUTOSTART_FOLDER /${AUTOSTART_FOLDER}) # the system's configuration is not below /usr
endif()
foreach(FOLDER AUTOSTART_FOLDER PROGRAM_FOLDER SAVER_FOLDER DESKTOP_FILE_FOLDER UNIT_FOLDER)
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

# The link in the folder of the target turns the unit on for all users.
set(UNIT ${UNIT_FOLDER}/starfolds-idle.service)
set(UNIT_LINK ${UNIT_FOLDER}/graphical-session.target.wants/starfolds-idle.service)
message(STATUS "Installing: $ENV{DESTDIR}${UNIT}")
configure_file(${UNIT_TEMPLATE} $ENV{DESTDIR}${UNIT} @ONLY)
file(MAKE_DIRECTORY $ENV{DESTDIR}${UNIT_FOLDER}/graphical-session.target.wants)
file(CREATE_LINK ../starfolds-idle.service $ENV{DESTDIR}${UNIT_LINK} SYMBOLIC)

file(INSTALL ${AUTOSTART_FILE} DESTINATION ${AUTOSTART_FOLDER})

list(APPEND CMAKE_INSTALL_MANIFEST_FILES ${LINK} ${DESKTOP_FILE} ${UNIT} ${UNIT_LINK})
