# One library per folder of src/, a layer. tests/architecture checks which layers each one includes.

# Pictures must be the same in every build: no fused multiply-add, and rounding by one instruction
# (errno is never read). The straight-line vectoriser of GCC 12 drops the rounding to Single of
# values that it packs into a vector, so it is off.
add_library(starfolds_options INTERFACE)
target_include_directories(starfolds_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(NOT MSVC)
  target_compile_options(starfolds_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Wimplicit-fallthrough -Werror -ffp-contract=off -fno-math-errno -fno-tree-slp-vectorize
    # GCC 12 sees overlapping copies in plain string concatenation at -O3 that are not there.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
  if(STARFOLDS_HARDEN)
    starfolds_harden(starfolds_options)
  endif()
  if(STARFOLDS_SANITIZE)
    set(SANITIZERS address,undefined,float-cast-overflow,float-divide-by-zero)
  elseif(STARFOLDS_SANITIZE_THREAD)
    # By itself: the undefined behaviour sanitizer of GCC 12 has a data race of its own.
    set(SANITIZERS thread)
  endif()
  if(SANITIZERS)
    target_compile_options(starfolds_options INTERFACE
      -fsanitize=${SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(starfolds_options INTERFACE -fsanitize=${SANITIZERS})
  endif()
  if(STARFOLDS_FUZZ) # counts which edges an input takes
    target_compile_options(starfolds_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(starfolds_options INTERFACE -fsanitize=fuzzer-no-link)
  endif()
else()
  target_compile_options(starfolds_options INTERFACE /W4 /WX /fp:precise)
endif()

# The saver for Windows is one file that users download. Functions that nothing uses are left out
# (cmake/windows/lean_link.py), and the layers that are not in this list, which no frame passes
# through, are compiled for size.
set(FRAME_LAYERS numbers platform prepared colour process bodies universe desktop render_lib)
if(MINGW)
  target_compile_options(starfolds_options INTERFACE -ffunction-sections -fdata-sections)
endif()

# starfolds_layer(NAME SOURCES file... KNOWS layer-or-library...)
function(starfolds_layer NAME)
  cmake_parse_arguments(LAYER "" "" "SOURCES;KNOWS" ${ARGN})
  add_library(starfolds_${NAME} STATIC ${LAYER_SOURCES})
  if(MINGW AND NOT NAME IN_LIST FRAME_LAYERS)
    target_compile_options(starfolds_${NAME} PRIVATE -Os)
  endif()
  target_link_libraries(starfolds_${NAME} PUBLIC starfolds_options ${LAYER_KNOWS})
endfunction()
