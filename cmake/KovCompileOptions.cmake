# Compile options of our own targets; every one is private to its target.

function(kov_warnings target)
  if(NOT KOV_STRICT_WARNINGS)
    return()
  endif()
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wvla -Werror)
  # Test macros with an empty variable part are the test framework's doing.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
endfunction()

# Programs: tests, examples, benchmarks, fuzz targets.
function(kov_program_options target)
  target_compile_features(${target} PRIVATE cxx_std_17 c_std_11)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF C_EXTENSIONS OFF)
  kov_warnings(${target})
endfunction()

# Library code: neither exceptions nor type information, position independent for shared and static use alike.
function(kov_library_options target)
  kov_program_options(${target})
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti -fno-semantic-interposition>)
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()
