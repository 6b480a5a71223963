# The tests. kov_tests is all of tests/*.cpp; it brings its own logging and memory services, so that it sees every line
# that is logged and can refuse a block. kov_platform_tests, all of tests/platform/*.cpp, runs the platform's own.

# Built from source, with the flags of this build: a sanitizer or another target machine needs its own.
set(KOV_GOOGLETEST_DIR "/usr/src/googletest" CACHE PATH "Sources of GoogleTest")
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory("${KOV_GOOGLETEST_DIR}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
target_compile_options(gtest PRIVATE -w)
target_compile_options(gtest_main PRIVATE -w)

if(NOT CMAKE_CROSSCOMPILING)
  include(GoogleTest)
endif()

function(kov_test_program target directory)
  file(GLOB sources CONFIGURE_DEPENDS "${directory}/*.cpp")
  if(NOT sources)
    return()
  endif()
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/platform/src"
                                               "${PROJECT_SOURCE_DIR}/tests")
  target_compile_definitions(${target} PRIVATE KOV_TEST_WIRE="${PROJECT_SOURCE_DIR}/tests/wire")
  target_link_libraries(${target} PRIVATE kov_protocol_static kov_platform gtest_main)
  kov_program_options(${target})
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${target} COMMAND ${target})  # in one go: a start under emulation costs more than most tests
  else()
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  endif()
endfunction()

# The exported fillers and analysis functions, one KOV_EXPORTED(name) a line, for the test of all of them.
file(GLOB kov_export_lists CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/exports/*.txt")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${kov_export_lists})
set(kov_exported "")
foreach(list IN LISTS kov_export_lists)
  file(STRINGS "${list}" names REGEX "(_PARAM_init|_MessageAnalysis)$")
  list(TRANSFORM names REPLACE "(.+)" "KOV_EXPORTED(\\1)\n")
  string(APPEND kov_exported ${names})
endforeach()
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/exported.inc" CONTENT "${kov_exported}")
file(GLOB kov_headers CONFIGURE_DEPENDS RELATIVE "${kov_include}" "${kov_include}/kov_protocol/*.h")
list(TRANSFORM kov_headers REPLACE "(.+)" "#include \"\\1\"\n")
string(JOIN "" kov_headers ${kov_headers})
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/exported_headers.inc" CONTENT "${kov_headers}")

kov_test_program(kov_tests "${PROJECT_SOURCE_DIR}/tests")
kov_test_program(kov_platform_tests "${PROJECT_SOURCE_DIR}/tests/platform")
target_include_directories(kov_tests PRIVATE "${PROJECT_BINARY_DIR}")  # exported.inc
