# Hardening: what makes a memory fault end the program instead of running an attacker's code.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)
include(CheckPIESupported)

# Sets RESULT to the highest level of checked C library calls that compiler and library have, or 0.
# The library warns of a level that it does not have.
function(starfolds_fortify_level RESULT)
  foreach(LEVEL 3 2)
    set(CMAKE_REQUIRED_FLAGS "-O2 -Werror -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${LEVEL}")
    check_cxx_source_compiles("#include <cstdio>\nint main() { return 0; }"
                              STARFOLDS_HAS_FORTIFY_${LEVEL})
    if(STARFOLDS_HAS_FORTIFY_${LEVEL})
      set(${RESULT} ${LEVEL} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  set(${RESULT} 0 PARENT_SCOPE)
endfunction()

# starfolds_harden(TARGET): all that link with the interface library TARGET are compiled and linked
# with the measures that this compiler and linker have. `./dev test` checks the programs for them.
function(starfolds_harden TARGET)
  starfolds_fortify_level(FORTIFY)
  if(FORTIFY)
    # Undefined first: distributions have a default of their own, and a redefinition is a warning.
    target_compile_options(${TARGET} INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${FORTIFY})
  endif()

  # Overwritten return addresses, jumps over the guard page, and (on x86 only) jumps to the middle
  # of a function.
  set(FLAGS -fstack-protector-strong -fcf-protection)
  if(NOT WIN32) # programs for Windows touch every page of the stack in any case
    list(APPEND FLAGS -fstack-clash-protection)
  endif()
  foreach(FLAG ${FLAGS})
    string(MAKE_C_IDENTIFIER "STARFOLDS_HAS${FLAG}" HAS_FLAG)
    check_cxx_compiler_flag(${FLAG} ${HAS_FLAG})
    if(${HAS_FLAG})
      target_compile_options(${TARGET} INTERFACE ${FLAG})
    endif()
  endforeach()

  if(MINGW) # the stack protector and the checked library calls are a library there
    target_link_libraries(${TARGET} INTERFACE ssp)
  endif()

  # Code at a random address. Libraries that use Qt are compiled with -fPIC, which Qt adds later.
  check_pie_supported(LANGUAGES CXX)
  if(CMAKE_CXX_LINK_PIE_SUPPORTED)
    target_compile_options(${TARGET} INTERFACE -fPIE)
    target_link_options(${TARGET} INTERFACE -pie)
  endif()

  # All symbols are resolved at the start, and their table is read-only afterwards.
  check_linker_flag(CXX "-Wl,-z,relro,-z,now" STARFOLDS_HAS_RELRO)
  if(STARFOLDS_HAS_RELRO)
    target_link_options(${TARGET} INTERFACE -Wl,-z,relro,-z,now)
  endif()
endfunction()
