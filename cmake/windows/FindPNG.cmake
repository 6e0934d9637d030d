# libpng of Debian's source package, which `./dev windows` unpacks, with Debian's zlib for MinGW-w64.
enable_language(C)
set(CMAKE_FIND_LIBRARY_SUFFIXES .a) # not zlib1.dll
find_package(ZLIB REQUIRED)
set(PNG_SOURCE ${CMAKE_BINARY_DIR}/sources/libpng1.6)
include(FindPackageHandleStandardArgs)
find_file(PNG_FILE png.c PATHS ${PNG_SOURCE} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
find_package_handle_standard_args(PNG REQUIRED_VARS PNG_FILE)

if(PNG_FOUND AND NOT TARGET PNG::PNG)
  configure_file(${PNG_SOURCE}/scripts/pnglibconf.h.prebuilt ${CMAKE_BINARY_DIR}/headers/pnglibconf.h
                 COPYONLY)
  set(PARTS png pngerror pngget pngmem pngpread pngread pngrio pngrtran pngrutil pngset pngtrans
            pngwio pngwrite pngwtran pngwutil)
  list(TRANSFORM PARTS PREPEND ${PNG_SOURCE}/)
  list(TRANSFORM PARTS APPEND .c)
  add_library(png STATIC ${PARTS})
  target_compile_definitions(png PRIVATE PNG_INTEL_SSE_OPT=0)
  target_compile_options(png PRIVATE -w)
  target_include_directories(png SYSTEM PUBLIC ${PNG_SOURCE} ${CMAKE_BINARY_DIR}/headers)
  target_link_libraries(png PUBLIC ZLIB::ZLIB)
  add_library(PNG::PNG ALIAS png)
endif()
