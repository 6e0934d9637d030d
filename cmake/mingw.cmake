# Cross-compiles for 64-bit Windows with Debian's MinGW-w64 and runs the programs under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The compiler for POSIX threads: the other one lacks std::thread.
set(TRIPLE x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${TRIPLE}-windres)

# Never headers and libraries of the system that compiles.
set(CMAKE_FIND_ROOT_PATH /usr/${TRIPLE})
# The static Qt that `./dev windows` makes or unpacks. Its tools run on the system that compiles.
get_filename_component(QT_FOLDER ${CMAKE_CURRENT_LIST_DIR}/../build/windows-qt/qt-mingw ABSOLUTE)
list(APPEND CMAKE_FIND_ROOT_PATH ${QT_FOLDER})
set(QT_HOST_PATH /usr)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# A program is one file, with the compiler's libraries in it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
