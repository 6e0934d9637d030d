# starfolds_windows_resources(TARGET): links the icon, the version, the manifest and the name in the
# system's list of screen savers into a program for Windows.
set(STARFOLDS_RESOURCE_FOLDER ${CMAKE_CURRENT_LIST_DIR})

function(starfolds_windows_resources TARGET)
  set(STARFOLDS_VERSION_NUMBERS
      "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
  set(STARFOLDS_MANIFEST ${CMAKE_CURRENT_BINARY_DIR}/starfolds.manifest)
  configure_file(${STARFOLDS_RESOURCE_FOLDER}/starfolds.manifest.in ${STARFOLDS_MANIFEST} @ONLY)
  configure_file(${STARFOLDS_RESOURCE_FOLDER}/starfolds.rc.in
                 ${CMAKE_CURRENT_BINARY_DIR}/starfolds.rc @ONLY)
  target_sources(${TARGET} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/starfolds.rc)
endfunction()
