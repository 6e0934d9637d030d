# SQLite as one file, which `./dev windows` makes of Debian's source package.
enable_language(C)
set(SQLITE3_SOURCE ${CMAKE_BINARY_DIR}/sources/sqlite3)
include(FindPackageHandleStandardArgs)
find_file(SQLite3_FILE sqlite3.c PATHS ${SQLITE3_SOURCE} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
find_package_handle_standard_args(SQLite3 REQUIRED_VARS SQLite3_FILE)

if(SQLite3_FOUND AND NOT TARGET SQLite::SQLite3)
  add_library(sqlite3 STATIC ${SQLite3_FILE})
  target_compile_definitions(sqlite3 PRIVATE SQLITE_OMIT_LOAD_EXTENSION)
  target_compile_options(sqlite3 PRIVATE -w -Os -ffunction-sections -fdata-sections)
  target_include_directories(sqlite3 SYSTEM INTERFACE ${SQLITE3_SOURCE})
  add_library(SQLite::SQLite3 ALIAS sqlite3)
endif()
