# CLI11 consists of headers, which are the same for every system. They are reached by a link of their
# own: /usr/include has headers of the system that compiles.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/headers)
file(CREATE_LINK /usr/include/CLI ${CMAKE_BINARY_DIR}/headers/CLI SYMBOLIC)
add_library(CLI11::CLI11 INTERFACE IMPORTED)
target_include_directories(CLI11::CLI11 INTERFACE ${CMAKE_BINARY_DIR}/headers)
set(CLI11_FOUND TRUE)
